#pragma once

#include "settings/AppSettings.h"
#include "updates/Updater.h"

#include <QQmlEngine>

// What QML reads as it is.

namespace ravelo {

struct ForeignAppSettings {
    Q_GADGET
    QML_FOREIGN(ravelo::AppSettings)
    QML_NAMED_ELEMENT(AppSettings)
    QML_UNCREATABLE("made in C++")
};

struct ForeignUpdater {
    Q_GADGET
    QML_FOREIGN(ravelo::Updater)
    QML_NAMED_ELEMENT(Updater)
    QML_UNCREATABLE("made in C++")
};

} // namespace ravelo
