#include "shelf/NearbySend.h"

#include "base/FileUrl.h"
#include "base/Files.h"
#include "platform/DetachedJobs.h"
#include "platform/Programs.h"

#include <QCoreApplication>

#include <algorithm>
#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

// Longer than the timeouts of the services: a disk may hang in addition.
constexpr Seconds lookTime{6};
constexpr Seconds sendTime{10};

/// GNOME's and Blueman's. Both accept paths and ask the user for the device.
QStringList senders() {
    return {u"bluetooth-sendto"_s, u"blueman-sendto"_s};
}

} // namespace

NearbySend::NearbySend(Services services) : services_(services) {}

NearbySend::~NearbySend() = default;

QString NearbySend::advice() {
    return QCoreApplication::translate(
        "ravelo::NearbySend",
        "Pair a device in KDE Connect, or install Blueman, to send files to it");
}

Handle NearbySend::refresh(std::function<void()> done) {
    if (!looking_) {
        look();
    }
    // Later refreshes find other devices.
    auto once = std::make_shared<std::function<void()>>(std::move(done));
    return refreshed_.add([once] {
        if (const auto call = std::exchange(*once, nullptr)) {
            call();
        }
    });
}

void NearbySend::look() {
    lookEnd_ = services_.scheduler.after(lookTime, [this] { found(Way::none, {}); });
    looking_ = services_.devices.list([this](QList<NearbyDevice> devices) {
        if (!devices.isEmpty()) {
            std::ranges::sort(devices, [](const NearbyDevice& a, const NearbyDevice& b) {
                return std::pair(a.name.toCaseFolded(), a.id) <
                       std::pair(b.name.toCaseFolded(), b.id);
            });
            found(Way::devices, std::move(devices));
            return;
        }
        looking_ = services_.programs.find(senders(), [this](const QByteArray& path) {
            program_ = path;
            found(path.isEmpty() ? Way::none : Way::program, {});
        });
    });
}

void NearbySend::found(Way way, QList<NearbyDevice> devices) {
    looking_.reset();
    lookEnd_.reset();
    const bool changed = way != way_ || devices != devices_;
    way_ = way;
    devices_ = std::move(devices);
    if (changed) {
        changes_.notify();
    }
    refreshed_.notify();
}

void NearbySend::send(const QList<QUrl>& files, const QString& deviceId,
                      std::function<void(Outcome)> done) {
    Sending& sending = sendings_.emplace_back(Sending{deviceId, std::move(done), 0, {}, {}});
    sending.end = services_.scheduler.after(sendTime, [this, &sending] { end(sending, 0); });
    const auto paths = std::make_shared<QList<QByteArray>>();
    for (const QUrl& file : files) {
        paths->append(filePath(file));
    }
    const auto folders = std::make_shared<qsizetype>();
    sending.work = services_.jobs.run(
        [paths, folders] {
            *folders = std::ranges::count_if(*paths, isFolder);
            paths->removeIf([](const QByteArray& path) { return !isRegularFile(path); });
        },
        [this, &sending, paths, folders] {
            sending.folders = *folders;
            handOver(sending, *paths);
        });
}

void NearbySend::handOver(Sending& sending, QList<QByteArray> paths) {
    if (sending.deviceId.isEmpty()) {
        if (!program_.isEmpty() && !paths.isEmpty()) {
            services_.programs.start(program_, paths);
        }
        end(sending, program_.isEmpty() ? 0 : paths.size());
        return;
    }
    // The services expect text.
    paths.removeIf([](const QByteArray& path) { return !path.isValidUtf8(); });
    if (paths.isEmpty()) {
        end(sending, 0);
        return;
    }
    QList<QByteArray> addresses;
    for (const QByteArray& path : paths) {
        addresses.append(fileAddress(fileUrl(path)));
    }
    sending.work = services_.devices.send(
        sending.deviceId, addresses,
        [this, &sending, count = paths.size()](bool taken) { end(sending, taken ? count : 0); });
}

void NearbySend::end(Sending& sending, qsizetype sent) {
    const auto done = std::move(sending.done);
    const qsizetype folders = sending.folders;
    sendings_.remove_if([&](const Sending& other) { return &other == &sending; });
    if (done) {
        done({sent, folders});
    }
}

} // namespace ravelo
