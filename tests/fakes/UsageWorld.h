#pragma once

#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeFolderChanges.h"
#include "fakes/FakeUsageSources.h"
#include "monitor/PlanUsage.h"
#include "monitor/UsageFile.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace ravelo {

/// Plan usage that is read from the file only.
struct UsageWorld {
    explicit UsageWorld(Scheduler& scheduler, const PlanWindows& windows = {})
        : clock(scheduler),
          jobs(scheduler),
          usage({scheduler, jobs, secrets, https, children}, (write(windows), home()),
                std::make_unique<FakeFolderChanges>()) {}

    [[nodiscard]] QByteArray home() const { return QFile::encodeName(folder.path()); }

    /// The contents of the file; read at the next tick.
    void write(const PlanWindows& windows) const {
        const QJsonObject limits{{QStringLiteral("five_hour"), json(windows.session)},
                                 {QStringLiteral("seven_day"), json(windows.week)}};
        const QJsonObject statusLine{{QStringLiteral("rate_limits"), limits}};
        if (!storeUsage(home(), QJsonDocument(statusLine).toJson())) {
            qFatal("cannot write below %s", home().constData());
        }
        QFile file(QFile::decodeName(usageFile(home())));
        if (!file.open(QFile::ReadWrite) ||
            !file.setFileTime(toDateTime(clock.now()), QFile::FileModificationTime)) {
            qFatal("cannot set the time of %s", qPrintable(file.fileName()));
        }
    }

    static QJsonValue json(const std::optional<UsageWindow>& window) {
        if (!window) {
            return QJsonValue::Null;
        }
        QJsonObject object{{QStringLiteral("used_percentage"), window->pct}};
        if (window->resets) {
            object.insert(QStringLiteral("resets_at"),
                          window->resets->sinceReference + referenceInstant);
        }
        return object;
    }

    Scheduler& clock;
    QTemporaryDir folder;
    FakeDetachedJobs jobs;
    FakeSecretStore secrets;
    SilentHttps https;
    EndlessChild children;
    PlanUsage usage;
};

} // namespace ravelo
