#include "shelf/FileDrop.h"

#include "platform/DragMonitor.h"

#include <utility>

namespace ravelo {

FileDrop::FileDrop(DragMonitor& drags, std::function<void(const QList<QUrl>&)> done)
    : drags_(drags), done_(std::move(done)), answers_(drags.onChange([this] { look(); })) {}

void FileDrop::expect() {
    (void)drags_.files();
}

void FileDrop::take() {
    awaited_ = drags_.changeCount();
    look();
}

void FileDrop::look() {
    if (!awaited_) {
        return;
    }
    if (*awaited_ != drags_.changeCount()) {
        awaited_.reset();
    } else if (const auto files = drags_.files()) {
        awaited_.reset();
        if (!files->isEmpty()) {
            done_(*files);
        }
    }
}

} // namespace ravelo
