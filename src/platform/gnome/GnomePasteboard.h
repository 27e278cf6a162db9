#pragma once

#include "base/Listeners.h"
#include "platform/Pasteboard.h"
#include "platform/gnome/Channel.h"
#include "platform/gnome/Reading.h"
#include "platform/gnome/Transfers.h"

#include <QObject>
#include <QTimer>

#include <map>
#include <memory>

namespace ravelo::gnome {

/// The clipboard as the extension reports it. It is written through Qt, which Mutter ignores unless
/// one of our windows has the focus; then the extension offers the text, all that it can. GNOME
/// Shell itself keeps what programs had that have ended.
///
/// From its making on QClipboard gives no signals any more: at each change text fields would read
/// the new contents on the main thread, and stand still with an owner that does not answer.
class GnomePasteboard final : private QObject, public Pasteboard {
public:
    /// Both must outlive it.
    GnomePasteboard(Channel& channel, Transfers& transfers);

    [[nodiscard]] qint64 changeCount() const override { return count_; }

    [[nodiscard]] bool reportsChanges() const override { return true; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_.add(std::move(callback));
    }

    [[nodiscard]] Handle read(PasteboardPlan plan,
                              std::function<void(PasteboardSnapshot)> done) override;
    qint64 write(const QList<PasteboardEntry>& forms) override;

    [[nodiscard]] Orphans orphans() const override { return Orphans::ofEndedOwners; }

    [[nodiscard]] std::optional<qint64> orphaned() const override { return std::nullopt; }

    [[nodiscard]] std::optional<qint64> adopt(const QList<PasteboardEntry>& /*forms*/) override {
        return std::nullopt;
    }

    [[nodiscard]] Handle onSaveRequest(std::function<void()> /*callback*/) override { return {}; }

    void answerSaveRequests(qint64 /*count*/, SaveAnswer /*answer*/) override {}

    /// Whether the contents are what we wrote last.
    [[nodiscard]] bool isOwn() const { return own_; }

    /// Calls back once Mutter has what was written while we had the focus; at once if it has.
    void onceWritten(std::function<void()> callback);

private:
    void copied(const Copied& report);
    void dropReadings();
    void writeByQt(const QList<PasteboardEntry>& forms);
    void offerText();
    void written();
    [[nodiscard]] QByteArray mark() const;

    Channel& channel_;
    Transfers& transfers_;
    qint64 count_ = 0;
    quint32 serial_ = 0;
    QList<QByteArray> types_; ///< Of another program's contents.
    PasteboardOwner owner_;
    std::optional<OwnerEnd> lastEnd_;
    Seconds lastChange_{};
    bool own_ = false; ///< The contents are what we wrote last.
    QList<PasteboardEntry> written_;
    int writes_ = 0;
    QTimer unconfirmed_; ///< Runs while Mutter may not have our last write yet.
    std::function<void()> onceWritten_;
    int nextKey_ = 0;
    Listeners<> changes_;
    std::shared_ptr<std::map<int, std::unique_ptr<Reading>>> readings_ =
        std::make_shared<std::map<int, std::unique_ptr<Reading>>>();
    Handle deliveries_;
};

} // namespace ravelo::gnome
