#pragma once

#include "notices/Notices.h"
#include "panel/NotchController.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "updates/Updater.h"

#include <QQmlEngine>

// Makes the observable parts of the program known to QML, which reads them as they are.

namespace ravelo {

struct ForeignStore {
    Q_GADGET
    QML_FOREIGN(ravelo::Store)
    QML_NAMED_ELEMENT(Store)
    QML_UNCREATABLE("the program has one")
};

struct ForeignAppSettings {
    Q_GADGET
    QML_FOREIGN(ravelo::AppSettings)
    QML_NAMED_ELEMENT(AppSettings)
    QML_UNCREATABLE("the program has one")
};

struct ForeignUpdater {
    Q_GADGET
    QML_FOREIGN(ravelo::Updater)
    QML_NAMED_ELEMENT(Updater)
    QML_UNCREATABLE("the program has one")
};

struct ForeignNotices {
    Q_GADGET
    QML_FOREIGN(ravelo::Notices)
    QML_NAMED_ELEMENT(Notices)
    QML_UNCREATABLE("the program has one")
};

struct ForeignNotchController {
    Q_GADGET
    QML_FOREIGN(ravelo::NotchController)
    QML_NAMED_ELEMENT(NotchController)
    QML_UNCREATABLE("the program has one")
};

} // namespace ravelo
