#pragma once

#include "base/Listeners.h"
#include "base/Scheduler.h"
#include "platform/NearbyDevices.h"

#include <QList>
#include <QString>
#include <QUrl>

#include <functional>
#include <list>

namespace ravelo {

class DetachedJobs;
class Programs;

/// Sends files to a device nearby: to one that is paired with this machine or, where there is none,
/// by the desktop's own program for it. Main thread; nothing here waits.
class NearbySend {
public:
    enum class Way {
        none,    ///< Nothing is installed, or nothing is in reach: see `advice`.
        devices, ///< To one of `devices`.
        program, ///< A program asks the user whom to send to.
    };

    /// All of it outlives this.
    struct Services {
        NearbyDevices& devices;
        Programs& programs;
        DetachedJobs& jobs;
        Scheduler& scheduler;
    };

    explicit NearbySend(Services services);
    ~NearbySend();

    /// What the last refresh found; none before the first.
    [[nodiscard]] Way way() const { return way_; }

    /// Paired and within reach, by name; empty unless that is the way.
    [[nodiscard]] const QList<NearbyDevice>& devices() const { return devices_; }

    /// After a change of `way` or `devices`.
    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return changes_.add(std::move(callback));
    }

    /// Looks anew and calls `done` once, later, within a few seconds; not where the handle is
    /// dropped. Several at a time share one look.
    [[nodiscard]] Handle refresh(std::function<void()> done);

    /// What became of files that were to be sent.
    struct Outcome {
        qsizetype sent = 0;    ///< Somebody took them.
        qsizetype folders = 0; ///< Left out as such.
    };

    /// Sends `files` to the device, or by the program where `deviceId` is empty; but for those that
    /// are missing and for folders: a service that comes to one sends nothing of what follows.
    /// `done`, if any, is called once, later. That files were sent is all that can be said, not
    /// that they were received.
    void send(const QList<QUrl>& files, const QString& deviceId,
              std::function<void(Outcome)> done = {});

    /// What the user could do where there is no way, in one sentence.
    [[nodiscard]] static QString advice();

private:
    /// One that is under way.
    struct Sending {
        QString deviceId;
        std::function<void(Outcome)> done;
        qsizetype folders = 0;
        Handle work; ///< The step that is being done.
        Handle end;
    };

    void look();
    void found(Way way, QList<NearbyDevice> devices);
    void handOver(Sending& sending, QList<QByteArray> paths);
    void end(Sending& sending, qsizetype sent);

    Services services_;
    Way way_ = Way::none;
    QList<NearbyDevice> devices_;
    QByteArray program_; ///< Where it is; empty for none.
    Listeners<> changes_;
    Listeners<> refreshed_;
    Handle looking_;
    Handle lookEnd_;
    std::list<Sending> sendings_;
};

} // namespace ravelo
