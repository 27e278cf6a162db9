#pragma once

#include "platform/FolderWatch.h"

namespace ravelo {

/// By inotify(7), which tells closed files from new ones. Each folder has a thread, which sleeps
/// while nothing happens: on a dead network mount even adding a watch may never return, so the
/// thread is not waited for for long.
class InotifyFolderWatch final : public FolderWatch {
public:
    [[nodiscard]] Handle watch(const QByteArray& path,
                               std::function<void(const FolderNews&)> notify) override;
};

} // namespace ravelo
