#pragma once

#include "platform/FolderWatch.h"

#include <functional>

struct inotify_event;

namespace ravelo {

/// Follows the folder at a path while it is created, changed, replaced and removed, by inotify(7).
/// Blocks on the disk; one thread.
class FolderFollower {
public:
    using Notify = std::function<void(FolderNews)>;

    FolderFollower(QByteArray path, Notify notify);
    ~FolderFollower();

    FolderFollower(const FolderFollower&) = delete;
    FolderFollower& operator=(const FolderFollower&) = delete;

    /// Readable when there is something to do; -1 if the system allows no watch.
    [[nodiscard]] int descriptor() const { return inotify_; }

    /// Reports what has happened, at first the contents; there may be more. Does not wait for
    /// changes.
    void proceed();

private:
    void read();
    void handle(const inotify_event& event);
    void handleChange(const inotify_event& event);
    void watchAbove();
    [[nodiscard]] int watchNearest();
    void watchFolder();
    void drop(int watch);
    void list(FolderListing::Unknown unknown);

    QByteArray path_; ///< Without a trailing slash.
    Notify notify_;
    int inotify_;
    int folder_ = -1;  ///< The watch of the folder, or -1.
    int above_ = -1;   ///< The watch of the nearest existing parent.
    QByteArray below_; ///< The entry in that parent that leads to the folder.
    bool first_ = true;

    // While reading events:
    QList<FolderChange> changes_;
    bool looksAgain_ = true; ///< The folder may have been replaced or removed.
    bool missed_ = false;
    FolderListing::Unknown unknown_ = FolderListing::Unknown::old;
};

} // namespace ravelo
