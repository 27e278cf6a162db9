#pragma once

#include "base/Files.h"
#include "base/Handle.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QUrl>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <utility>

namespace ravelo {

class DetachedJobs;
class Scheduler;

/// Checks which files exist. A file on a dead mount may never answer: it is unknown after two
/// seconds, does not delay files in other folders, and is not checked again while the last check
/// hangs. Main thread.
class FileLook {
public:
    using Found = QHash<QUrl, Presence>;

    /// What is known of a folder before it is checked; the most trusted go first.
    enum class Trust {
        answered, ///< Last time.
        fresh,
        besideHung ///< Maybe on the same dead mount as a folder that hangs.
    };

    FileLook(DetachedJobs& jobs, Scheduler& scheduler) : jobs_(jobs), scheduler_(scheduler) {}

    /// Calls `done` later with what is known of each file. Cancels a look in progress: its `done`
    /// is not called.
    void look(const QList<QUrl>& files, std::function<void(const Found&)> done);

private:
    [[nodiscard]] Trust trustIn(const QByteArray& folder) const;
    void askMore();
    void ask(const QByteArray& folder, const QList<QUrl>& files);
    void finish();

    DetachedJobs& jobs_;
    Scheduler& scheduler_;
    Found found_;
    std::function<void(const Found&)> done_;
    std::map<std::pair<Trust, QByteArray>, QList<QUrl>> waiting_; ///< By folder.
    std::map<QByteArray, Handle> asked_; ///< By folder; including hanging ones.
    std::set<QByteArray> answered_;      ///< Folders.
    int open_ = 0;                       ///< Those of `asked_` from this look.
    int number_ = 0;                     ///< Of this look.
    Handle limit_;
};

} // namespace ravelo
