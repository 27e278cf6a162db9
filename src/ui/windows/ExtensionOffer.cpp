#include "ui/windows/ExtensionOffer.h"

namespace ravelo {

using State = DesktopExtension::State;

ExtensionOffer::ExtensionOffer(DesktopExtension* extension) : extension_(extension) {
    if (extension_ != nullptr) {
        changes_ = extension_->onChange([this] { Q_EMIT changed(); });
    }
}

bool ExtensionOffer::isOffered() const {
    return state() != State::notNeeded && state() != State::on;
}

bool ExtensionOffer::canTurnOn() const {
    return state() == State::off;
}

bool ExtensionOffer::isWaiting() const {
    return state() == State::waitsForLogin || state() == State::waitsForStart;
}

bool ExtensionOffer::waitsForLogin() const {
    return state() == State::waitsForLogin;
}

QString ExtensionOffer::next() const {
    switch (state()) {
    case State::missing:
        return tr("It is not installed.");
    case State::failed:
        return tr("It could not be turned on. Turn extensions on in the Extensions app, or log out "
                  "and in and try again.");
    case State::waitsForLogin:
        return tr("It is turned on. Log out and in once.");
    case State::waitsForStart:
        return tr("It is turned on. Quit Ravelo and start it again.");
    case State::older:
        return tr("The extension is older than Ravelo. Log out and in once.");
    case State::newer:
        return tr("The extension is newer than Ravelo. Quit Ravelo and start it again.");
    case State::notNeeded:
    case State::off:
    case State::on:
        break;
    }
    return {};
}

void ExtensionOffer::turnOn() {
    if (canTurnOn()) {
        extension_->turnOn();
    }
}

DesktopExtension::State ExtensionOffer::state() const {
    return extension_ == nullptr ? State::notNeeded : extension_->state();
}

} // namespace ravelo
