#include "ui/windows/SettingsWindow.h"

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

SettingsWindow::SettingsWindow(Subjects subjects)
    : subjects_(std::move(subjects)), extension_(subjects_.extension) {
    connect(&subjects_.store, &Store::clipsChanged, this, &SettingsWindow::clipsChanged);
}

SettingsWindow::~SettingsWindow() = default;

int SettingsWindow::clipCount() const {
    return static_cast<int>(subjects_.store.clips().size());
}

void SettingsWindow::show() {
    subjects_.settings.refreshLaunchAtLogin();
    if (!window_) {
        window_ = std::make_unique<TitledWindow>(subjects_.beside, tr("Ravelo Settings"),
                                                 QSize(460, 600));
        window_->load(u"SettingsView.qml"_s, this);
    }
    window_->bringToFront();
}

} // namespace ravelo
