#include "ui/setup/OnboardingController.h"

#include "platform/Screens.h"

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

OnboardingController::OnboardingController(TitledWindow::Beside beside, AppSettings& settings,
                                           Screens& screens, DesktopExtension* extension,
                                           GlobalShortcut* shortcut)
    : beside_(std::move(beside)),
      settings_(settings),
      screens_(screens),
      extension_(extension),
      shortcut_(shortcut, settings, {}),
      screensMonitor_(screens.onChange([this] { Q_EMIT hasNotchChanged(); })) {}

OnboardingController::~OnboardingController() {
    delete window_;
}

bool OnboardingController::hasNotch() const {
    const auto main = screens_.main();
    return main && main->leftOfNotch && main->rightOfNotch;
}

void OnboardingController::show() {
    if (window_ == nullptr) {
        window_ = new TitledWindow(beside_, tr("Ravelo Setup"), QSize(520, 520));
        connect(window_, &TitledWindow::closed, this, &OnboardingController::drop);
        window_->load(u"Setup/OnboardingView.qml"_s, this);
    }
    window_->bringToFront();
}

void OnboardingController::finish() {
    settings_.onboarded.set(true);
    if (window_ != nullptr) {
        window_->close();
    }
}

void OnboardingController::drop() {
    if (TitledWindow* const window = std::exchange(window_, nullptr)) {
        window->deleteLater();
    }
}

} // namespace ravelo
