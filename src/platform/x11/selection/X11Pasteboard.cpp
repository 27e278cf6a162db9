#include "platform/x11/selection/X11Pasteboard.h"

#include "platform/x11/selection/OwnerNames.h"
#include "platform/x11/selection/PasteboardConversation.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QMimeData>

namespace ravelo::x11 {

namespace {

constexpr auto selectionName = "CLIPBOARD";

} // namespace

X11Pasteboard::X11Pasteboard(Listener& listener)
    : listener_(listener),
      ownClient_(OwnClient::ofQt()),
      selection_(listener.connection().atom(selectionName)),
      changes_(std::make_shared<MainThreadNotifier>(listener)),
      saveAsked_(std::make_shared<MainThreadNotifier>(listener)),
      saveRequests_(std::make_shared<SaveRequests>(listener.connection(), ownClient_,
                                                   [asked = saveAsked_] { asked->notify(); })) {
    QGuiApplication::clipboard()->blockSignals(true);
    // Qt warns if another program copies during a write; settleWrite() handles that.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.clipboard.warning=false"));
    auto changed = [counter = counter_, changes = changes_, saveRequests = saveRequests_,
                    own = ownClient_](const OwnerChange& change) {
        saveRequests->ownerChanged(change.owner);
        if (own.owns(change.owner)) {
            return;
        }
        if (change.cause == OwnerChange::Cause::death ? counter->countDeath(change.sequence)
                                                      : counter->countForeign(change.sequence)) {
            changes->notify();
        }
    };
    watch_ = std::make_shared<SelectionWatch>(listener.connection(), selectionName, changed);
    listener.attach(watch_);
    listener.attach(saveRequests_);
}

Handle X11Pasteboard::read(PasteboardPlan plan, std::function<void(PasteboardSnapshot)> done) {
    const auto key = ++nextKey_;
    const qint64 count = counter_->value();
    reads_->insert({key, std::move(done)});
    // A complete reading is reported even if the owner has changed since: a main thread that is
    // behind loses no copy.
    auto finish = [&listener = listener_, reads = std::weak_ptr(reads_),
                   key](PasteboardSnapshot snapshot) {
        listener.callOnMain([reads, key, snapshot = std::move(snapshot)]() mutable {
            const auto alive = reads.lock();
            if (const auto read = alive ? alive->extract(key) : Reads::node_type(); !read.empty()) {
                read.mapped()(std::move(snapshot));
            }
        });
    };
    listener_.post([&listener = listener_, counter = counter_, watch = watch_,
                    saveRequests = saveRequests_, clients = ownClient_, naming = naming_, count,
                    key, plan = std::move(plan), finish = std::move(finish)] {
        // Otherwise the event of an earlier change could still arrive and end the reading.
        listener.catchUp();
        if (counter->value() == count) {
            PasteboardSnapshot known;
            known.changeCount = count;
            known.owner = saveRequests->owner();
            const xcb_window_t owner = saveRequests->ownerWindow();
            if (naming == Naming::on && owner != XCB_NONE) {
                known.owner.names = ownerNames(listener.connection(), clients, owner);
            }
            known.lastEnd = counter->lastEnd();
            watch->reader().add(key, std::make_unique<PasteboardConversation>(
                                         listener.connection(), std::move(known), plan, finish));
        }
    });
    return Handle([&listener = listener_, reads = std::weak_ptr(reads_), watch = watch_, key] {
        const auto alive = reads.lock();
        if (alive && alive->erase(key) > 0) {
            listener.post([watch, key] { watch->reader().cancel(key); });
        }
    });
}

qint64 X11Pasteboard::write(const QList<PasteboardEntry>& forms) {
    auto contents = std::make_unique<QMimeData>();
    for (const PasteboardEntry& form : forms) {
        contents->setData(form.type, form.bytes);
    }
    counter_->count();
    QGuiApplication::clipboard()->setMimeData(contents.release()); // Qt waits for the server.
    return settleWrite();
}

std::optional<qint64> X11Pasteboard::adopt(const QList<PasteboardEntry>& forms) {
    // The listener may not have heard yet of a program that is quicker than we are.
    if (!orphaned() || owner() != XCB_NONE) {
        return std::nullopt;
    }
    return write(forms);
}

void X11Pasteboard::answerSaveRequests(qint64 count, SaveAnswer answer) {
    listener_.post([saveRequests = saveRequests_, counter = counter_, count, answer] {
        if (counter->value() == count) { // Else something newer was copied.
            saveRequests->answer(answer);
        }
    });
}

/// The present owner; XCB_NONE if there is none, nothing if the server is gone.
std::optional<xcb_window_t> X11Pasteboard::owner() {
    xcb_connection_t* xcb = listener_.connection().get();
    const Owned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(xcb, xcb_get_selection_owner(xcb, selection_), nullptr));
    listener_.post([] {}); // The reply may have brought notices along.
    return reply ? std::optional(reply->owner) : std::nullopt;
}

/// Notices from before the write count no more, but what came after it already does.
qint64 X11Pasteboard::settleWrite() {
    xcb_connection_t* xcb = listener_.connection().get();
    const auto cookie = xcb_get_selection_owner(xcb, selection_);
    const qint64 count = counter_->settleOwn(cookie.sequence);
    const Owned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(xcb, cookie, nullptr));
    listener_.post([] {}); // The reply may have brought notices along.
    if (reply && !ownClient_.owns(reply->owner)) {
        // Someone was faster; the notice of that passes for one from before our write.
        listener_.callOnMain([counter = counter_, changes = changes_] {
            counter->count();
            changes->notify();
        });
    }
    return count;
}

} // namespace ravelo::x11
