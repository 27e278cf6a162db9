#include "ui/SettingsWindow.h"
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

SettingsWindow::SettingsWindow(Subjects subjects) : subjects_(std::move(subjects)) {
    connect(store(), &Store::clipsChanged, this, &SettingsWindow::clipsChanged);
}

SettingsWindow::~SettingsWindow() = default;

int SettingsWindow::clipCount() const {
    return static_cast<int>(store()->clips().size());
}

void SettingsWindow::show() {
    subjects_.settings.refreshLaunchAtLogin();
    if (!window_) {
        window_ =
            std::make_unique<TitledWindow>(subjects_.beside, u"Ravelo Settings"_s, QSize(460, 600));
        window_->load(u"settings/SettingsView.qml"_s, this);
    }
    window_->bringToFront();
}

} // namespace ravelo
