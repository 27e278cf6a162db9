#include "ui/settings/PastePermission.h"

#include "platform/PasteKeys.h"

namespace ravelo {

PastePermission::PastePermission(PasteKeys* keys) : keys_(keys) {
    if (keys_ != nullptr) {
        changes_ = keys_->onPermissionChange([this] { Q_EMIT changed(); });
    }
}

QString PastePermission::note() const {
    switch (keys_ != nullptr ? keys_->permission() : TypingPermission::notNeeded) {
    case TypingPermission::unasked:
        return tr("Into the window you came from. The desktop asks you first whether to allow "
                  "remote interaction.");
    case TypingPermission::refused:
        return tr("You did not allow Ravelo to type, so it only copies.");
    case TypingPermission::unavailable:
        return tr("Only copies: the desktop did not answer when Ravelo asked for permission to "
                  "type.");
    case TypingPermission::notNeeded:
    case TypingPermission::given:
        break;
    }
    return {};
}

bool PastePermission::isRefused() const {
    return keys_ != nullptr && keys_->permission() == TypingPermission::refused;
}

void PastePermission::forgetRefusal() {
    if (keys_ != nullptr) {
        keys_->forgetRefusal();
    }
}

} // namespace ravelo
