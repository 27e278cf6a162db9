#pragma once

#include "base/Handle.h"

#include <QByteArray>

#include <functional>

namespace ravelo {

class DetachedJobs;
class Scheduler;
struct PasteboardSnapshot;

/// The path of the file that stands for an image, if a pasteboard read with `nextImageType` gave a
/// list of copied files: the first that is on this machine; empty otherwise. The file is not looked
/// at. Any thread.
[[nodiscard]] QByteArray copiedFile(const PasteboardSnapshot& contents);

/// What is in such a file.
struct CopiedContents {
    QByteArray bytes;
    qint64 tooLarge = 0; ///< Its size, if it was not read because it has more than 64 MiB.
};

/// Reads such a file, which may lie on a mount whose server is gone, and calls `done` with what is
/// in it, later. That is nothing if it is no regular file, does not begin like a picture or has not
/// been read after two seconds. Main thread.
[[nodiscard]] Handle readCopiedFile(DetachedJobs& jobs, Scheduler& scheduler,
                                    const QByteArray& path,
                                    std::function<void(const CopiedContents&)> done);

} // namespace ravelo
