#pragma once

#include "platform/Pasteboard.h"
#include "platform/x11/connection/Connection.h"
#include "platform/x11/connection/MainThreadNotifier.h"
#include "platform/x11/selection/SaveRequests.h"
#include "platform/x11/selection/SelectionWatch.h"

#include <map>
#include <memory>

namespace ravelo::x11 {

/// The CLIPBOARD selection: listened to and read on the listener's thread, written through Qt,
/// which then serves it to others from the main thread.
///
/// From its construction on, QClipboard emits no signals: at each change text fields would read
/// the new contents on the main thread, and block with an owner that does not answer.
class X11Pasteboard final : public Pasteboard {
public:
    /// Before `listener` starts; it must outlive this.
    explicit X11Pasteboard(Listener& listener);

    [[nodiscard]] qint64 changeCount() const override { return counter_->value(); }

    [[nodiscard]] bool reportsChanges() const override { return true; }

    [[nodiscard]] bool namesPrograms() const override { return true; }

    void setNaming(Naming naming) override { naming_ = naming; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_->add(std::move(callback));
    }

    [[nodiscard]] Handle read(PasteboardPlan plan,
                              std::function<void(PasteboardSnapshot)> done) override;

    /// If another program has copied since the newest event that Qt has seen, such as the user's
    /// press in our window, the server keeps that later copy (ICCCM 2.1), and it is reported as a
    /// change.
    qint64 write(const QList<PasteboardEntry>& forms) override;

    [[nodiscard]] Orphans orphans() const override { return Orphans::ofEndedOwners; }

    [[nodiscard]] std::optional<qint64> orphaned() const override { return counter_->orphaned(); }

    [[nodiscard]] std::optional<qint64> adopt(const QList<PasteboardEntry>& forms) override;

    [[nodiscard]] Handle onSaveRequest(std::function<void()> callback) override {
        return saveAsked_->add(std::move(callback));
    }

    void answerSaveRequests(qint64 count, SaveAnswer answer) override;

private:
    using Reads = std::map<SelectionReader::Key, std::function<void(PasteboardSnapshot)>>;

    [[nodiscard]] std::optional<xcb_window_t> owner();
    [[nodiscard]] qint64 settleWrite();

    Listener& listener_;
    OwnClient ownClient_;
    Naming naming_ = Naming::off;
    xcb_atom_t selection_;
    std::shared_ptr<ChangeCounter> counter_ = std::make_shared<ChangeCounter>();
    std::shared_ptr<MainThreadNotifier> changes_;
    std::shared_ptr<MainThreadNotifier> saveAsked_;
    std::shared_ptr<SaveRequests> saveRequests_;
    std::shared_ptr<SelectionWatch> watch_;
    std::shared_ptr<Reads> reads_ = std::make_shared<Reads>();
    SelectionReader::Key nextKey_ = 0;
};

} // namespace ravelo::x11
