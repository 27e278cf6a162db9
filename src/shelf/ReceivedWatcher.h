#pragma once

#include "base/Listeners.h"
#include "base/Scheduler.h"
#include "platform/FolderWatch.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QUrl>

#include <functional>
#include <map>
#include <optional>

namespace ravelo {

/// The files that arrived in the downloads folder since the program started. A file counts once it
/// is complete: closed after writing, or renamed into place; so does a folder that is moved in.
/// Hidden files and unfinished downloads never count. Main thread.
class ReceivedWatcher {
public:
    ReceivedWatcher(FolderWatch& watch, Scheduler& scheduler, QString folder);

    ReceivedWatcher(const ReceivedWatcher&) = delete;
    ReceivedWatcher& operator=(const ReceivedWatcher&) = delete;

    /// The watched folder, which may be missing.
    [[nodiscard]] const QString& folder() const { return folder_; }

    /// In order of arrival, those that still exist.
    [[nodiscard]] const QList<QUrl>& files() const { return files_; }

    /// Whether one arrived within the last four seconds.
    [[nodiscard]] bool receiving() const { return static_cast<bool>(receivingEnd_); }

    /// Notified after `files` or `receiving` changed; during a flood of files ten times a second.
    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return changes_.add(std::move(callback));
    }

private:
    /// Increases with each arrival; `old` for what was there before.
    using Arrival = qint64;
    static constexpr Arrival old = 0;

    /// The first half of a rename.
    struct MovedOut {
        quint32 renaming = 0;
        QByteArray name;
        std::optional<Arrival> known;
    };

    void take(const FolderNews& news);
    void notify();
    void takeListing(const FolderListing& listing);
    void takeChange(const FolderChange& change);
    void movedIn(const FolderChange& change);
    void arrive(const QByteArray& name);
    void place(const QByteArray& name, Arrival arrival);
    std::optional<Arrival> forget(const QByteArray& name);

    Scheduler& scheduler_;
    QString folder_;
    QHash<QByteArray, Arrival> known_; ///< The complete files of the folder.
    std::map<Arrival, QUrl> received_;
    Arrival lastArrival_ = old;
    MovedOut movedOut_;
    bool arrived_ = false; ///< The news being handled brought something new.
    bool changed_ = false; ///< The list, since the last notification.
    QList<QUrl> files_;
    Listeners<> changes_;
    Handle pause_; ///< Between two notifications.
    Handle receivingEnd_;
    Handle watching_;
};

} // namespace ravelo
