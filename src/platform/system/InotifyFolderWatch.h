#pragma once

#include "platform/FolderWatch.h"

namespace ravelo {

/// Folders by inotify(7), which tells a file that was closed from one that was just made. Each has
/// a thread, asleep while nothing happens: even asking for the watch of a folder on a dead network
/// mount may never return, so nobody waits for that thread for long.
class InotifyFolderWatch final : public FolderWatch {
public:
    [[nodiscard]] Handle watch(const QByteArray& path,
                               std::function<void(const FolderNews&)> tell) override;
};

} // namespace ravelo
