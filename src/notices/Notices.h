#pragma once

#include "base/Scheduler.h"

#include <QObject>
#include <QString>

#include <map>

namespace ravelo {

/// The panel's messages about the program's own files. Shows one at a time, the worst first. In
/// memory only. Main thread.
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
    enum Kind { SavingFails, NotDeleted, Warning, SavedAgain, Locked, PutAside, SecretKept, None };
    Q_ENUM(Kind)

    /// Whose file it is about.
    enum class Source { store, preferences };

    explicit Notices(Scheduler& scheduler);

    /// Whether a save that failed may succeed later.
    enum class Retry { yes, no };

    /// A save failed. `reason` is a phrase such as "the disk is full". Shown once saving has failed
    /// for a minute, since the next try may succeed; at once if there will be none.
    void saveFailed(Source source, const QString& reason, Retry retry = Retry::yes);
    void saved(Source source);

    /// A file could not be read and was moved to `path`. Shown until the user dismisses it or opens
    /// the folder.
    void putAside(Source source, const QString& path);

    /// Files of deleted records are still on the disk, for this reason; an empty one ends it. Shown
    /// until the user dismisses it or no such file can be left.
    void deletionEnded(const QString& problem);

    /// Something went wrong and cannot be mended: what, and why. Shown until the user dismisses it.
    void warn(const QString& what, const QString& why);

    /// The store is locked, and something came since: what it waits for, what that means, and how
    /// to end it. An empty `lead` ends it.
    void setLocked(const QString& lead, const QString& rest, const QString& action);

    /// For the first time, a copied text is only kept in memory; `form` is what it looks like.
    /// Shown until the user dismisses it or wants such texts kept.
    void secretKept(const QString& form);

    /// What is shown now.
    [[nodiscard]] Kind kind() const { return shown_.kind; }

    [[nodiscard]] QString lead() const { return shown_.lead; }

    [[nodiscard]] QString rest() const { return shown_.rest; } ///< May be empty, as may `action`.

    [[nodiscard]] QString action() const { return shown_.action; }

    [[nodiscard]] bool dismissible() const {
        return shown_.kind == PutAside || shown_.kind == NotDeleted || shown_.kind == Warning ||
               shown_.kind == SecretKept;
    }

    Q_INVOKABLE void act();
    /// Does nothing if the notice cannot be dismissed.
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void changed();
    void tryAgain();                      ///< Save whatever failed.
    void keepSecrets();                   ///< Such texts are to be kept as any text.
    void openFolder(const QString& path); ///< Show the file in its folder.
    void unlock();

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
        Retry retry = Retry::yes;
    };

    void update();
    void watchFailure();
    [[nodiscard]] const Failure* worstFailure() const;
    [[nodiscard]] Notice worst() const;
    [[nodiscard]] Notice failing(const Failure& failure) const;
    [[nodiscard]] static Notice fileAside(Source source, const QString& path);

    Scheduler& scheduler_;
    std::map<Source, Failure> failures_;
    std::map<Source, QString> aside_;
    QString notDeleted_;
    Notice warning_;
    Notice locked_;
    QString secret_; ///< Its form; empty if there is nothing to say.
    Notice shown_;
    Handle nextMinute_;
    Handle savedAgain_; ///< Set while "Saved again." is shown.
};

} // namespace ravelo
