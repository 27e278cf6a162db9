#include "ui/updates/UpdateWindow.h"

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

UpdateWindow::UpdateWindow(TitledWindow::Beside beside, Updater& updater)
    : beside_(std::move(beside)), updater_(updater) {}

UpdateWindow::~UpdateWindow() = default;

void UpdateWindow::show() {
    updater_.checkForUpdates();
    if (!window_) {
        window_ = std::make_unique<TitledWindow>(beside_, tr("Ravelo Updates"), QSize(400, 184));
        window_->load(u"Updates/UpdateView.qml"_s, this);
    }
    window_->bringToFront();
}

} // namespace ravelo
