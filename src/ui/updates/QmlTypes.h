#pragma once

#include "updates/Updater.h"

#include <QQmlEngine>

namespace ravelo {

/// What QML reads as it is.
struct ForeignUpdater {
    Q_GADGET
    QML_FOREIGN(ravelo::Updater)
    QML_NAMED_ELEMENT(Updater)
    QML_UNCREATABLE("made in C++")
};

} // namespace ravelo
