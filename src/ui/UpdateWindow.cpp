#include "ui/UpdateWindow.h"

#include "ui/TitledWindow.h"

namespace ravelo {

using namespace Qt::StringLiterals;

UpdateWindow::UpdateWindow(QQuickView& panel, Updater& updater)
    : panel_(panel), updater_(updater) {}

UpdateWindow::~UpdateWindow() = default;

void UpdateWindow::show() {
    updater_.checkForUpdates();
    if (!window_) {
        window_ = std::make_unique<TitledWindow>(panel_, u"Ravelo Updates"_s, QSize(400, 184));
        window_->load(u"updates/UpdateView.qml"_s, this);
    }
    window_->bringToFront();
}

} // namespace ravelo
