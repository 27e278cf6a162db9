#pragma once

#include "base/Handle.h"
#include "platform/Pasteboard.h"

#include <functional>

namespace ravelo {

class DetachedJobs;
class Scheduler;
class Store;
struct ClipItem;

/// What reading stored clips needs; all of it outlives the reading.
struct ClipReading {
    Store& store;
    DetachedJobs& jobs;
    Scheduler& scheduler;

    /// Files are to be pasted only if the user has chosen them.
    enum class Files { included, left };

    using Done = std::function<void(const QList<PasteboardEntry>&)>;

    /// Calls `done` with all forms of a clip, best first and its text last; with the text alone if
    /// there are no others (then at once), or if they are not read soon. Empty for an image that
    /// cannot be read. Main thread.
    [[nodiscard]] Handle clip(const ClipItem& clip, Files files, Done done) const;

    /// Likewise of an image file in the clips folder.
    [[nodiscard]] Handle image(const QString& path, Done done) const;
};

} // namespace ravelo
