#pragma once

#include "base/Scheduler.h"

#include <QObject>
#include <QString>

#include <functional>
#include <map>

namespace ravelo {

/// What the panel has to say about the program's own files. One notice is shown at a time, the
/// worst first; the others wait. In memory only. Main thread.
class Notices : public QObject {
    Q_OBJECT
    Q_PROPERTY(Kind kind READ kind NOTIFY changed)
    Q_PROPERTY(QString lead READ lead NOTIFY changed)
    Q_PROPERTY(QString rest READ rest NOTIFY changed)
    Q_PROPERTY(QString action READ action NOTIFY changed)
    Q_PROPERTY(bool dismissible READ dismissible NOTIFY changed)

public:
    /// The worst first.
    // NOLINTNEXTLINE(readability-identifier-naming): QML demands capitals.
    enum Kind { SavingFails, SavedAgain, PutAside, None };
    Q_ENUM(Kind)

    /// Whose file it is about.
    enum class Source { store, preferences };

    explicit Notices(Scheduler& scheduler);

    /// A save failed. `reason` is a phrase such as "the disk is full". It is shown once saving has
    /// failed for a minute; until then the next try may succeed.
    void saveFailed(Source source, const QString& reason);
    void saved(Source source);

    /// A file could not be read and lies at `path` now. Shown until it is dismissed or acted upon.
    void putAside(Source source, const QString& path);

    /// "Try again" was pressed: save whatever failed.
    std::function<void()> onTryAgain;
    /// "Open folder" was pressed: show the file in its folder.
    std::function<void(const QString& path)> onOpenFolder;

    /// What is shown now.
    [[nodiscard]] Kind kind() const { return shown_.kind; }

    [[nodiscard]] QString lead() const { return shown_.lead; }

    [[nodiscard]] QString rest() const { return shown_.rest; } ///< May be empty, as may `action`.

    [[nodiscard]] QString action() const { return shown_.action; }

    [[nodiscard]] bool dismissible() const { return shown_.kind == PutAside; }

    Q_INVOKABLE void act();
    /// Does nothing if what is shown cannot be dismissed.
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void changed();

private:
    struct Notice {
        Kind kind = None;
        QString lead;
        QString rest;
        QString action;

        bool operator==(const Notice&) const = default;
    };

    struct Failure {
        Seconds since; ///< Uptime.
        QString reason;
    };

    void update();
    void watchFailure();
    [[nodiscard]] const Failure* longestFailure() const;
    [[nodiscard]] Notice worst() const;
    [[nodiscard]] Notice failing(const Failure& failure) const;
    [[nodiscard]] static Notice fileAside(Source source, const QString& path);

    Scheduler& scheduler_;
    std::map<Source, Failure> failures_;
    std::map<Source, QString> aside_;
    Notice shown_;
    Handle nextMinute_;
    Handle savedAgain_; ///< Set as long as that is shown.
};

} // namespace ravelo
