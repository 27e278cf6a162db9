#include "ui/vault/VaultView.h"

#include <utility>

namespace ravelo {

namespace {

constexpr auto engineProperty = "raveloVault";

} // namespace

VaultView::VaultView(Encryption* encryption, QQmlEngine& engine) : encryption_(encryption) {
    engine.setProperty(engineProperty, QVariant::fromValue(this));
    if (encryption_ != nullptr) {
        connect(encryption_, &Encryption::changed, this, [this] {
            asked_ = asked_ && isLocked();
            Q_EMIT changed();
        });
    }
}

VaultView* VaultView::create(QQmlEngine* engine, QJSEngine* /*scripts*/) {
    auto* view = engine->property(engineProperty).value<VaultView*>();
    QJSEngine::setObjectOwnership(view, QJSEngine::CppOwnership);
    return view;
}

QString VaultView::title() const {
    switch (state()) {
    case Encryption::Starting:
    case Encryption::WaitingForKeyring:
        return tr("Waiting for the keyring\u2026");
    case Encryption::NoKeyring:
        return tr("No keyring answers");
    case Encryption::KeyMissing:
        return tr("The key is not in the keyring");
    case Encryption::WaitingForPassphrase:
        return tr("Your clips are encrypted");
    case Encryption::Newer:
        return tr("Your clips were stored by a newer Ravelo");
    case Encryption::Damaged:
        return tr("The key file is missing or damaged");
    case Encryption::Off:
    case Encryption::Open:
        break;
    }
    return {};
}

QString VaultView::detail() const {
    switch (state()) {
    case Encryption::Starting:
    case Encryption::WaitingForKeyring:
        return tr("Your clips are encrypted. They are back as soon as it is unlocked.");
    case Encryption::NoKeyring:
        return tr("Ravelo\u2019s key is kept there. Start it, or log in again.");
    case Encryption::WaitingForPassphrase:
        return tr("Type the passphrase to open them.");
    case Encryption::KeyMissing:
    case Encryption::Newer:
    case Encryption::Damaged:
        return tr("Nothing was overwritten.");
    case Encryption::Off:
    case Encryption::Open:
        break;
    }
    return {};
}

bool VaultView::canUnlock() const {
    return state() == Encryption::WaitingForKeyring || state() == Encryption::NoKeyring ||
           state() == Encryption::KeyMissing;
}

bool VaultView::asksPassphrase() const {
    return state() == Encryption::WaitingForPassphrase;
}

void VaultView::unlock() {
    if (canUnlock()) {
        encryption_->unlock();
    } else {
        ask();
    }
}

void VaultView::ask() {
    if (asksPassphrase() && !std::exchange(asked_, true)) {
        Q_EMIT changed();
    }
}

void VaultView::reset() {
    if (std::exchange(asked_, false)) {
        Q_EMIT changed();
    }
}

void VaultView::tryPassphrase(PassphraseInput* input) {
    if (encryption_ != nullptr && !isBusy() && input->length() > 0) {
        encryption_->tryPassphrase(input->take());
    }
}

void VaultView::look() {
    if (encryption_ != nullptr) {
        encryption_->look();
    }
}

void VaultView::useKeyring() {
    if (encryption_ != nullptr) {
        encryption_->useKeyring();
    }
}

void VaultView::usePassphrase(PassphraseInput* input) {
    if (encryption_ != nullptr && input->length() > 0) {
        encryption_->usePassphrase(input->take());
    }
}

void VaultView::turnOff() {
    if (encryption_ != nullptr) {
        encryption_->turnOff();
    }
}

} // namespace ravelo
