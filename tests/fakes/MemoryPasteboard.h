#pragma once

#include "base/Listeners.h"
#include "base/Scheduler.h"
#include "platform/Pasteboard.h"

namespace ravelo {

/// A pasteboard in memory. Answers come a moment later, as from another program.
class MemoryPasteboard final : public Pasteboard {
public:
    explicit MemoryPasteboard(Scheduler& scheduler) : scheduler_(scheduler) {}

    [[nodiscard]] qint64 changeCount() const override { return changeCount_; }

    [[nodiscard]] bool reportsChanges() const override { return reportsAll; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override;
    [[nodiscard]] Handle read(PasteboardPlan plan,
                              std::function<void(PasteboardSnapshot)> done) override;
    qint64 write(const QList<PasteboardEntry>& forms) override;

    void setNaming(Naming naming) override { naming_ = naming; }

    [[nodiscard]] Orphans orphans() const override { return orphansAre; }

    [[nodiscard]] std::optional<qint64> orphaned() const override { return orphaned_; }

    [[nodiscard]] std::optional<qint64> adopt(const QList<PasteboardEntry>& forms) override;
    [[nodiscard]] Handle onSaveRequest(std::function<void()> callback) override;
    void answerSaveRequests(qint64 count, SaveAnswer answer) override;

    /// The owner wants its contents saved, and waits.
    void askToSave();

    /// The answer; nothing while the owner waits.
    [[nodiscard]] std::optional<SaveAnswer> saveAnswer() const { return saveAnswer_; }

    /// The owner after the next calls of `offer`.
    PasteboardOwner owner{1};

    /// Sizes of forms that are too large, by type.
    QHash<QString, qint64> tooLarge;

    /// Called once, between handing out the change count and the reading, or after our own writing
    /// and before it returns.
    std::function<void()> meanwhile;

    /// Another program copies.
    void offer(const QList<PasteboardEntry>& forms);
    void offerText(const QString& text);

    /// Another program copies and never answers.
    void offerSilence();

    /// The owner clears the pasteboard.
    void release();

    /// The owner ends, and its contents are gone.
    void loseOwner();

    Orphans orphansAre = Orphans::ofEndedOwners;

    /// Whether it promises to report every change.
    bool reportsAll = true;

    /// Whether changes by others are reported at once or found only by polling.
    bool notifies = true;

    /// The time until an owner answers.
    Seconds answerTime{0.001};

    [[nodiscard]] const QList<PasteboardEntry>& contents() const { return forms_; }

    [[nodiscard]] QByteArray bytes(QLatin1StringView type) const;

    /// All types that owners were asked for.
    [[nodiscard]] const QStringList& asked() const { return asked_; }

private:
    void replace(const QList<PasteboardEntry>& forms);
    void passTime();
    void notify();
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
    Naming naming_ = Naming::off;
};

} // namespace ravelo
