#pragma once

#include "base/Scheduler.h"
#include "platform/FolderWatch.h"
#include "platform/NearbyDevices.h"
#include "platform/Programs.h"

#include <memory>
#include <utility>

namespace ravelo {

/// Answers on demand; until then the service hangs.
class FakeNearbyDevices final : public NearbyDevices {
public:
    struct Sent {
        QString deviceId;
        QList<QByteArray> addresses;
    };

    [[nodiscard]] Handle list(std::function<void(QList<NearbyDevice>)> done) override {
        ++looks;
        listed_ = std::move(done);
        return Handle([this] { listed_ = nullptr; });
    }

    [[nodiscard]] Handle send(const QString& deviceId, const QList<QByteArray>& addresses,
                              std::function<void(bool)> done) override {
        sent.append({deviceId, addresses});
        taken_ = std::move(done);
        return Handle([this] { taken_ = nullptr; });
    }

    void answer(const QList<NearbyDevice>& devices) {
        if (const auto done = std::exchange(listed_, nullptr)) {
            done(devices);
        }
    }

    void answerSend(bool taken) {
        if (const auto done = std::exchange(taken_, nullptr)) {
            done(taken);
        }
    }

    int looks = 0;
    QList<Sent> sent;

private:
    std::function<void(QList<NearbyDevice>)> listed_;
    std::function<void(bool)> taken_;
};

/// Answers once time advances.
class FakePrograms final : public Programs {
public:
    explicit FakePrograms(Scheduler& scheduler) : scheduler_(scheduler) {}

    [[nodiscard]] Handle find(const QStringList& names,
                              std::function<void(QByteArray)> done) override {
        QByteArray path;
        for (const QString& name : names) {
            if (path.isEmpty() && installed.contains(name)) {
                path = "/usr/bin/" + name.toUtf8();
            }
        }
        return scheduler_.after(Seconds(0), [done = std::move(done), path] { done(path); });
    }

    void start(const QByteArray& path, const QList<QByteArray>& arguments) override {
        started.append(QList{path} + arguments);
    }

    QStringList installed;
    QList<QList<QByteArray>> started; ///< Each with its arguments.

private:
    Scheduler& scheduler_;
};

class FakeFolderWatch final : public FolderWatch {
public:
    [[nodiscard]] Handle watch(const QByteArray& path,
                               std::function<void(const FolderNews&)> report) override {
        watched = path;
        report_ = std::move(report);
        return Handle([this] { report_ = nullptr; });
    }

    void report(const FolderNews& news) const {
        if (report_) {
            report_(news);
        }
    }

    QByteArray watched;

private:
    std::function<void(const FolderNews&)> report_;
};

} // namespace ravelo
