#pragma once

#include "vault/Encryption.h"

#include <QQmlEngine>

// What QML reads as it is.

namespace ravelo {

struct ForeignEncryption {
    Q_GADGET
    QML_FOREIGN(ravelo::Encryption)
    QML_NAMED_ELEMENT(Encryption)
    QML_UNCREATABLE("made in C++")
};

} // namespace ravelo
