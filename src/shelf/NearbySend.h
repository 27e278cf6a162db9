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

/// Sends files to a device nearby: one that is paired with this machine or, if there is none,
/// through the desktop's own program. Main thread; never waits.
class NearbySend {
public:
    enum class Way {
        none,    ///< Nothing installed or in reach: see `advice`.
        devices, ///< To one of `devices`.
        program, ///< A program asks the user for the device.
    };

    /// All outlive this object.
    struct Services {
        NearbyDevices& devices;
        Programs& programs;
        DetachedJobs& jobs;
        Scheduler& scheduler;
    };

    explicit NearbySend(Services services);
    ~NearbySend();

    /// Found by the last refresh; `none` before the first.
    [[nodiscard]] Way way() const { return way_; }

    /// Paired and in reach, sorted by name; empty unless `way` is `devices`.
    [[nodiscard]] const QList<NearbyDevice>& devices() const { return devices_; }

    /// After a change of `way` or `devices`.
    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return changes_.add(std::move(callback));
    }

    /// Looks again and calls `done` once, within a few seconds; not if the handle is dropped.
    /// Concurrent calls share one look.
    [[nodiscard]] Handle refresh(std::function<void()> done);

    /// The outcome of sending.
    struct Outcome {
        qsizetype sent = 0;    ///< Accepted by the service.
        qsizetype folders = 0; ///< Skipped.
    };

    /// Sends `files` to the device, or through the program if `deviceId` is empty. Skips missing
    /// files and folders: a service that finds one sends nothing after it. `done`, if any, is
    /// called once, later. Whether the files were received is not known.
    void send(const QList<QUrl>& files, const QString& deviceId,
              std::function<void(Outcome)> done = {});

    /// Advice for the user if there is no way, as one sentence.
    [[nodiscard]] static QString advice();

private:
    /// A sending in progress.
    struct Sending {
        QString deviceId;
        std::function<void(Outcome)> done;
        qsizetype folders = 0;
        Handle work; ///< The current step.
        Handle end;
    };

    void look();
    void found(Way way, QList<NearbyDevice> devices);
    void handOver(Sending& sending, QList<QByteArray> paths);
    void end(Sending& sending, qsizetype sent);

    Services services_;
    Way way_ = Way::none;
    QList<NearbyDevice> devices_;
    QByteArray program_; ///< Its path; empty if there is none.
    Listeners<> changes_;
    Listeners<> refreshed_;
    Handle looking_;
    Handle lookEnd_;
    std::list<Sending> sendings_;
};

} // namespace ravelo
