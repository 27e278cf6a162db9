#pragma once

#include "base/Handle.h"
#include "monitor/ContextReader.h"
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

/// How full the context of the newest Claude Code session is, looked up every five seconds. What
/// is not found leaves the last reading as it is. Main thread, which never waits for a file.
class LiveContext : public QObject {
    Q_OBJECT

public:
    /// Tokens in the context of every model where the user has set no limit.
    static constexpr qint64 usualLimit = 1'000'000;

    /// Both outlive it.
    struct Services {
        Scheduler& scheduler;
        DetachedJobs& jobs; ///< For what looks at files.
    };

    /// Begins at once to read below `home`, the user's home folder; see ContextReader.
    LiveContext(Services services, const QByteArray& home, std::unique_ptr<FolderChanges> changes,
                const QByteArrayList& otherFolders = {});
    ~LiveContext() override;

    /// The process's own, made at its first use and never destroyed; see MonitorPlatform.
    [[nodiscard]] static LiveContext& shared();

    /// For display: "Opus 4.6". Empty until a session was found.
    [[nodiscard]] const QString& model() const { return model_; }

    /// Tokens.
    [[nodiscard]] qint64 used() const { return used_; }

    /// Tokens; whatever the user has set, also nonsense.
    [[nodiscard]] qint64 limit() const { return limit_; }

    [[nodiscard]] const std::optional<Date>& lastActivity() const { return lastActivity_; }

    /// Whether Claude Code is on this computer; yes until somebody has looked.
    [[nodiscard]] bool installed() const { return installed_; }

    [[nodiscard]] const PeakInfo& peak() const { return peak_; }

    /// Looks everything up anew. The files are read elsewhere and their news come later; while they
    /// are being read they are not read once more.
    void refresh();

    /// At the end of every refresh.
    std::function<void()> onChange;

    /// A count of tokens in short: "12k", "1.2M".
    [[nodiscard]] static QString shortCount(qint64 tokens);

Q_SIGNALS:
    void changed();

private:
    void take(const ContextReading& reading);
    void tell();

    Services services_;
    QString model_;
    qint64 used_ = 0;
    qint64 limit_ = usualLimit;
    std::optional<Date> lastActivity_;
    PeakInfo peak_;
    bool installed_ = true;
    std::shared_ptr<ContextReader> reader_; ///< At work elsewhere while `reading_` is there.
    Handle reading_;
    Handle timer_;
};

} // namespace ravelo
