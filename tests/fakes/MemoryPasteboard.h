#pragma once

#include "base/Listeners.h"
#include "base/Scheduler.h"
#include "platform/Pasteboard.h"

namespace ravelo {

/// A pasteboard in memory. Answers come a moment later on the given scheduler, as they would from
/// another program.
class MemoryPasteboard final : public Pasteboard {
public:
    explicit MemoryPasteboard(Scheduler& scheduler) : scheduler_(scheduler) {}

    [[nodiscard]] qint64 changeCount() const override { return changeCount_; }

    [[nodiscard]] bool reportsChanges() const override { return tellsChanges; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override;
    [[nodiscard]] Handle read(PasteboardPlan plan,
                              std::function<void(PasteboardSnapshot)> done) override;
    qint64 write(const QList<PasteboardEntry>& forms) override;

    [[nodiscard]] std::optional<qint64> orphaned() const override { return orphaned_; }

    [[nodiscard]] std::optional<qint64> adopt(const QList<PasteboardEntry>& forms) override;
    [[nodiscard]] Handle onSaveRequest(std::function<void()> callback) override;
    void answerSaveRequests(qint64 count, SaveAnswer answer) override;

    /// The owner asks that its contents be saved, and waits.
    void askToSave();

    /// What it was answered; nothing while it waits.
    [[nodiscard]] std::optional<SaveAnswer> saveAnswer() const { return saveAnswer_; }

    /// Who takes the pasteboard by the next calls of `offer`.
    PasteboardOwner owner{1};

    /// What else is known of the contents, but for the owners.
    QHash<QString, qint64> tooLarge;

    /// Called once, in between: after the change count was given out and before the reading that
    /// is asked for, or after our own writing and before it returns.
    std::function<void()> meanwhile;

    /// Another program takes the pasteboard.
    void offer(const QList<PasteboardEntry>& forms);
    void offerText(const QString& text);

    /// Another program takes the pasteboard and never answers.
    void offerSilence();

    /// The owner gives the contents up.
    void release();

    /// The owner ends, and the contents go with it.
    void loseOwner();

    /// Whether an owner's end is told from its giving the contents up.
    bool knowsDeaths = true;

    /// Whether changes from elsewhere are told at once, or only seen by asking.
    bool tellsChanges = true;

    /// How long an owner takes for an answer.
    Seconds answerTime{0.001};

    [[nodiscard]] const QList<PasteboardEntry>& contents() const { return forms_; }

    [[nodiscard]] QByteArray bytes(QLatin1StringView type) const;

    /// Every type that anybody asked the owners for.
    [[nodiscard]] const QStringList& asked() const { return asked_; }

private:
    void replace(const QList<PasteboardEntry>& forms);
    void passTime();
    void tell();
    [[nodiscard]] PasteboardSnapshot follow(const PasteboardPlan& plan);

    Scheduler& scheduler_;
    Listeners<> listeners_;
    QList<PasteboardEntry> forms_;
    QStringList asked_;
    qint64 changeCount_ = 7;
    std::optional<qint64> orphaned_;

    struct End {
        qint64 changeCount;
        Seconds time;
    };

    std::optional<End> lastEnd_;
    Seconds lastChange_{};
    Listeners<> saveListeners_;
    bool saveAsked_ = false;
    std::optional<SaveAnswer> saveAnswer_;
    bool silent_ = false;
};

} // namespace ravelo
