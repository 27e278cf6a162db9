#include "platform/x11/selection/X11DragMonitor.h"

#include "platform/x11/connection/Connection.h"
#include "platform/x11/selection/SelectionWatch.h"
#include "platform/x11/selection/X11DragOffer.h"

namespace ravelo::x11 {

X11DragMonitor::X11DragMonitor(Listener& listener)
    : listener_(listener),
      changes_(std::make_shared<MainThreadNotifier>(listener)),
      reads_(std::make_shared<DragReads>(
          listener.connection(), listener.connection().atom(QByteArrayLiteral("XdndSelection")))) {
    auto changed = [counter = counter_, changes = changes_, reads = reads_,
                    own = OwnClient::ofQt()](const OwnerChange& change) {
        if (change.owner != XCB_NONE && !own.owns(change.owner)) {
            reads->sourceChanged(change.time);
            counter->countForeign(change.sequence);
            changes->notify();
        }
    };
    listener.attach(std::make_shared<SelectionWatch>(listener.connection(),
                                                     QByteArrayLiteral("XdndSelection"), changed));
    listener.attach(reads_);
}

std::shared_ptr<DragOffer> X11DragMonitor::newest() {
    const qint64 count = counter_->value();
    if (count != 0 && (!newest_ || newest_->count() != count)) {
        newest_ = std::make_shared<X11DragOffer>(
            count, X11DragOffer::Source{listener_, counter_, changes_, reads_});
    }
    return newest_;
}

} // namespace ravelo::x11
