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

/// Reads such a file, which may lie on a mount whose server is gone, and calls `done` with its
/// bytes, later. They are empty if it is no regular file, does not begin like a picture, has more
/// than 64 MiB or has not been read after two seconds. Main thread.
[[nodiscard]] Handle readCopiedFile(DetachedJobs& jobs, Scheduler& scheduler,
                                    const QByteArray& path,
                                    std::function<void(const QByteArray&)> done);

} // namespace ravelo
