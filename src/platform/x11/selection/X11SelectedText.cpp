#include "platform/x11/selection/X11SelectedText.h"

#include "platform/x11/selection/OwnerNames.h"
#include "platform/x11/selection/PasteboardConversation.h"

namespace ravelo::x11 {

X11SelectedText::X11SelectedText(Listener& listener)
    : listener_(listener),
      clients_(OwnClient::ofQt()),
      changes_(std::make_shared<MainThreadNotifier>(listener)),
      owner_(std::make_shared<xcb_window_t>(XCB_NONE)) {
    auto changed = [changes = changes_, owner = owner_,
                    clients = clients_](const OwnerChange& now) {
        *owner = clients.owns(now.owner) ? XCB_NONE : now.owner;
        if (*owner != XCB_NONE) {
            changes->notify();
        }
    };
    watch_ = std::make_shared<SelectionWatch>(listener.connection(), "PRIMARY", changed,
                                              SelectionWatch::Listens::later);
    listener.attach(watch_);
}

void X11SelectedText::setWatch(Watch watch) {
    watch_->listen(watch == Watch::on ? SelectionWatch::Listens::now
                                      : SelectionWatch::Listens::later);
}

Handle X11SelectedText::read(PasteboardPlan plan, std::function<void(PasteboardSnapshot)> done) {
    const auto key = ++nextKey_;
    reads_->insert({key, std::move(done)});
    auto finish = [&listener = listener_, reads = std::weak_ptr(reads_),
                   key](PasteboardSnapshot snapshot) {
        listener.callOnMain([reads, key, snapshot = std::move(snapshot)]() mutable {
            const auto alive = reads.lock();
            if (const auto read = alive ? alive->extract(key) : Reads::node_type(); !read.empty()) {
                read.mapped()(std::move(snapshot));
            }
        });
    };
    listener_.post([&listener = listener_, watch = watch_, owner = owner_, clients = clients_, key,
                    plan = std::move(plan), finish = std::move(finish)] {
        listener.catchUp();
        if (*owner != XCB_NONE) {
            PasteboardSnapshot known;
            known.owner = {clients.clientOf(*owner), PasteboardOwner::Kind::program,
                           ownerNames(listener.connection(), clients, *owner)};
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

} // namespace ravelo::x11
