#pragma once

#include "platform/FolderWatch.h"

namespace ravelo {

/// By inotify(7), which distinguishes closed files from new ones. Each folder has a thread, which
/// sleeps while nothing happens: on a dead network mount even adding a watch may never return, so
/// the wait for the thread has a timeout.
class InotifyFolderWatch final : public FolderWatch {
public:
    [[nodiscard]] Handle watch(const QByteArray& path,
                               std::function<void(const FolderNews&)> notify) override;
};

} // namespace ravelo
