#pragma once

#include "platform/FolderWatch.h"

#include <functional>

struct inotify_event;

namespace ravelo {

/// Follows the folder at a path as it comes, changes, is replaced and goes, by inotify(7). Blocks
/// where the disk does; one thread.
class FolderFollower {
public:
    using Tell = std::function<void(FolderNews)>;

    FolderFollower(QByteArray path, Tell tell);
    ~FolderFollower();

    FolderFollower(const FolderFollower&) = delete;
    FolderFollower& operator=(const FolderFollower&) = delete;

    /// Readable when there is something to do; -1 where the system allows no watch.
    [[nodiscard]] int descriptor() const { return inotify_; }

    /// Tells of what has happened, at the first time of what there is; there may be more. Does not
    /// wait for anything to happen.
    void proceed();

private:
    void read();
    void take(const inotify_event& event);
    void takeChange(const inotify_event& event);
    void watchAbove();
    [[nodiscard]] int watchNearest();
    void watchFolder();
    void drop(int watch);
    void list(FolderListing::Unknown unknown);

    QByteArray path_; ///< Without a slash at its end.
    Tell tell_;
    int inotify_;
    int folder_ = -1;  ///< The watch of the folder; -1 while there is none.
    int above_ = -1;   ///< The watch of the nearest folder above it that is there.
    QByteArray below_; ///< Which of its entries leads to the folder.
    bool first_ = true;

    // Of the events that are being read:
    QList<FolderChange> changes_;
    bool looksAgain_ = true; ///< The folder may be another one now, or none.
    bool missed_ = false;
    FolderListing::Unknown unknown_ = FolderListing::Unknown::old;
};

} // namespace ravelo
