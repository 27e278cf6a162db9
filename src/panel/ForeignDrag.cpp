#include "panel/ForeignDrag.h"

#include "platform/DragMonitor.h"

#include <utility>

namespace ravelo {

ForeignDrag::ForeignDrag(DragMonitor& drags) : drags_(drags), idleCount_(drags.changeCount()) {}

void ForeignDrag::buttonsUp() {
    idleCount_ = drags_.changeCount();
}

bool ForeignDrag::isOn() const {
    return drags_.changeCount() != idleCount_;
}

bool ForeignDrag::carriesFiles() {
    if (auto newest = drags_.newest(); newest != newest_.offer()) {
        newest_ = OfferedFiles(std::move(newest));
    }
    return !newest_.named().value_or(QList<QUrl>()).isEmpty();
}

} // namespace ravelo
