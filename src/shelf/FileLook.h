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

namespace ravelo {

class DetachedJobs;
class Scheduler;

/// Looks which files are there. A file on a mount whose server is gone may never answer: it is
/// unknown after two seconds, keeps no other folder's files waiting, and is not asked for again as
/// long as the last question hangs. Main thread.
class FileLook {
public:
    using Found = QHash<QUrl, Presence>;

    FileLook(DetachedJobs& jobs, Scheduler& scheduler) : jobs_(jobs), scheduler_(scheduler) {}

    /// Calls `done` with what is known of each file, later. A look that is still going on is given
    /// up: its `done` is not called.
    void look(const QList<QUrl>& files, std::function<void(const Found&)> done);

private:
    void askMore();
    void ask(const QByteArray& folder, const QList<QUrl>& files);
    void finish();

    DetachedJobs& jobs_;
    Scheduler& scheduler_;
    Found found_;
    std::function<void(const Found&)> done_;
    std::map<QByteArray, QList<QUrl>> waiting_; ///< By folder.
    std::map<QByteArray, Handle> asked_;        ///< By folder; also those that hang from before.
    int open_ = 0;                              ///< Of those that were asked in this look.
    int number_ = 0;                            ///< Of this look.
    Handle limit_;
};

} // namespace ravelo
