#pragma once

#include "settings/AppSettings.h"

#include <QQmlEngine>

namespace ravelo {

/// What QML reads as it is.
struct ForeignAppSettings {
    Q_GADGET
    QML_FOREIGN(ravelo::AppSettings)
    QML_NAMED_ELEMENT(AppSettings)
    QML_UNCREATABLE("made in C++")
};

} // namespace ravelo
