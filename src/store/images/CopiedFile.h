#pragma once

#include "base/Handle.h"

#include <QByteArray>

#include <functional>

namespace ravelo {

class DetachedJobs;
class Scheduler;
struct PasteboardSnapshot;

/// The path of the copied file that stands for an image: the first on this machine in a list of
/// files, read with `nextImageType`; empty if there is none. The file itself is not read. Any
/// thread.
[[nodiscard]] QByteArray copiedFile(const PasteboardSnapshot& contents);

/// The contents of such a file.
struct CopiedContents {
    QByteArray bytes;
    qint64 tooLarge = 0; ///< Its size if it has more than 64 MiB and was not read.
};

/// Reads such a file, possibly on a dead mount, and calls `done` later with its contents. These are
/// empty if it is not a regular file, does not start like a picture, or was not read within two
/// seconds. Main thread.
[[nodiscard]] Handle readCopiedFile(DetachedJobs& jobs, Scheduler& scheduler,
                                    const QByteArray& path,
                                    std::function<void(const CopiedContents&)> done);

} // namespace ravelo
