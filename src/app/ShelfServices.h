#pragma once

#include "base/Handle.h"
#include "platform/freedesktop/DesktopFileOpener.h"
#include "platform/freedesktop/IconTheme.h"
#include "platform/freedesktop/KdeConnect.h"
#include "platform/system/InotifyFolderWatch.h"
#include "platform/system/SystemPrograms.h"
#include "shelf/NearbySend.h"
#include "shelf/ReceivedWatcher.h"

#include <memory>

namespace ravelo {

class DetachedJobs;
class IconPreference;

/// What the shelf's tab works with, made of this system's parts. Main thread.
struct ShelfServices {
    /// They must outlive it. `fileJobs` is for looks at the user's files.
    ShelfServices(Scheduler& scheduler, DetachedJobs& jobs, DetachedJobs& fileJobs,
                  IconPreference& preference);

    SystemPrograms programs;
    KdeConnect devices;
    InotifyFolderWatch folders;
    DesktopFileOpener opener;
    std::shared_ptr<IconTheme> icons; ///< Pictures may still be made when all else is gone.
    ReceivedWatcher received;
    NearbySend nearby;
    Handle themeChange;
};

} // namespace ravelo
