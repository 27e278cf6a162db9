#pragma once

#include "base/Handle.h"
#include "monitor/ContextReader.h"
#include "monitor/Looks.h"
#include "monitor/PeakInfo.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace ravelo {

class DetachedJobs;
class FolderChanges;
class Scheduler;

/// How full the context of the newest Claude Code session is, updated within five seconds. If
/// nothing is found, the last reading stays. Main thread; never waits for a file.
class LiveContext : public QObject {
    Q_OBJECT

public:
    /// Tokens; for every model, unless the user has set a limit.
    static constexpr qint64 usualLimit = 1'000'000;

    /// Both outlive it.
    struct Services {
        Scheduler& scheduler;
        DetachedJobs& jobs; ///< For what looks at files.
    };

    /// Starts reading at once; see ContextReader.
    LiveContext(Services services, const QByteArray& home, std::unique_ptr<FolderChanges> changes,
                const QByteArrayList& otherFolders = {});
    ~LiveContext() override;

    /// The process's own: the first call makes it, and nothing destroys it or what it is made from.
    [[nodiscard]] static LiveContext&
    shared(const std::function<std::unique_ptr<LiveContext>()>& make);

    /// For display: "Opus 4.6". Empty until a session was found.
    [[nodiscard]] const QString& model() const { return model_; }

    /// Tokens.
    [[nodiscard]] qint64 used() const { return used_; }

    /// Tokens; what the user has set is not validated.
    [[nodiscard]] qint64 limit() const { return limit_; }

    [[nodiscard]] const std::optional<Date>& lastActivity() const { return lastActivity_; }

    /// Name of the session's project; untrusted text in one line.
    [[nodiscard]] const QString& project() const { return project_; }

    /// What Claude Code handed over last, if it does.
    [[nodiscard]] const std::optional<HandedOver>& handed() const { return handed_; }

    /// Which session counts, from the next refresh on; the newest at first.
    void setSession(ContextReader::Session session) { session_ = session; }

    /// Whether Claude Code is on this computer; yes until somebody has looked.
    [[nodiscard]] bool installed() const { return installed_; }

    [[nodiscard]] const PeakInfo& peak() const { return peak_; }

    /// Updates everything. Files are read on another thread, one read at a time.
    void refresh();

    /// At the end of every refresh, and when the text about peak hours changes.
    std::function<void()> onChange;

    /// A short form of a count of tokens: "12k", "1.2M".
    [[nodiscard]] static QString shortCount(qint64 tokens);

Q_SIGNALS:
    void changed();

private:
    void apply(const ContextReading& reading);
    void notify();
    void awaitNextLabel();

    Services services_;
    QString model_;
    qint64 used_ = 0;
    qint64 limit_ = usualLimit;
    std::optional<Date> lastActivity_;
    QString project_;
    std::optional<HandedOver> handed_;
    ContextReader::Session session_ = ContextReader::Session::newest;
    PeakInfo peak_;
    bool installed_ = true;
    std::shared_ptr<ContextReader> reader_; ///< In use by another thread while `reading_` is set.
    Handle reading_;
    Looks looks_;
    Handle nextLabel_;
    Handle otherSession_; ///< Set while a newer one waits.
};

} // namespace ravelo
