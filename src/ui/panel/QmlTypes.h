#pragma once

#include "notices/Notices.h"
#include "panel/NotchController.h"

#include <QQmlEngine>

// What QML reads as it is.

namespace ravelo {

struct ForeignNotices {
    Q_GADGET
    QML_FOREIGN(ravelo::Notices)
    QML_NAMED_ELEMENT(Notices)
    QML_UNCREATABLE("made in C++")
};

struct ForeignNotchController {
    Q_GADGET
    QML_FOREIGN(ravelo::NotchController)
    QML_NAMED_ELEMENT(NotchController)
    QML_UNCREATABLE("made in C++")
};

} // namespace ravelo
