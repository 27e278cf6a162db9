#pragma once

#include "base/Listeners.h"
#include "platform/Pasteboard.h"
#include "platform/wayland/clipboard/Selection.h"

#include <atomic>
#include <map>
#include <memory>

namespace ravelo::wayland {

class ActiveWindow;

/// The clipboard by data control: needs no focus, and neither reads nor serves contents on the main
/// thread. The end of an owner and clearing look the same.
///
/// From its construction on, QClipboard emits no signals: at each change text fields would read
/// the new contents on the main thread, and block with an owner that does not answer.
class WaylandPasteboard final : public Pasteboard {
public:
    /// Before `thread` starts; it must outlive this.
    explicit WaylandPasteboard(ClipboardThread& thread);

    [[nodiscard]] qint64 changeCount() const override { return count_->value(); }

    /// Whether the contents are ours.
    [[nodiscard]] bool isOwn() const { return count_->isOwn(); }

    [[nodiscard]] bool reportsChanges() const override { return true; }

    /// A copy counts as that of the active window: the compositor does not say whose it is. They
    /// must outlive this.
    void setWindows(ActiveWindow& windows) { windows_ = &windows; }

    [[nodiscard]] bool namesPrograms() const override;
    void setNaming(Naming naming) override;

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_->listeners.add(std::move(callback));
    }

    [[nodiscard]] Handle read(PasteboardPlan plan,
                              std::function<void(PasteboardSnapshot)> done) override;
    qint64 write(const QList<PasteboardEntry>& forms) override;

    [[nodiscard]] std::optional<qint64> orphaned() const override { return count_->emptied(); }

    [[nodiscard]] Orphans orphans() const override { return Orphans::orCleared; }

    [[nodiscard]] std::optional<qint64> adopt(const QList<PasteboardEntry>& forms) override;

    /// Never: no program waits.
    [[nodiscard]] Handle onSaveRequest(std::function<void()> /*callback*/) override { return {}; }

    void answerSaveRequests(qint64 /*count*/, SaveAnswer /*answer*/) override {}

private:
    struct Changes {
        Listeners<> listeners;
        std::atomic<bool> pending = false; ///< One call for all that the main thread has not seen.
    };

    using Reads = std::map<Selection::Key, std::function<void(PasteboardSnapshot)>>;

    qint64 write(const QList<PasteboardEntry>& forms, Selection::Over over);

    ClipboardThread& thread_;
    ActiveWindow* windows_ = nullptr;
    Naming naming_ = Naming::off;
    std::shared_ptr<ChangeCount> count_ = std::make_shared<ChangeCount>();
    std::shared_ptr<Changes> changes_ = std::make_shared<Changes>();
    std::shared_ptr<Selection> selection_;
    std::shared_ptr<Reads> reads_ = std::make_shared<Reads>();
    Selection::Key nextKey_ = 1;
};

} // namespace ravelo::wayland
