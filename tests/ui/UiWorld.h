#pragma once

#include "clipboard/ClipboardManager.h"
#include "fakes/FakeDisplay.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/ManualScheduler.h"
#include "fakes/ManualWorker.h"
#include "fakes/MemoryPasteboard.h"
#include "fakes/MemoryPreferences.h"
#include "panel/NotchController.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "store/StoreFile.h"

#include <QFile>
#include <QTemporaryDir>

namespace ravelo {

/// Everything that the panel shows, in memory, on one screen of 1440 x 900. The store begins with
/// the given data.
struct UiWorld {
    explicit UiWorld(const StoreData& data = {})
        : store(filled(folder, data), {scheduler, worker, preferences, pasteboard}) {}

    QTemporaryDir folder;
    ManualScheduler scheduler;
    ManualWorker worker;
    MemoryPreferences preferences;
    FakeLoginItem loginItem;
    MemoryPasteboard pasteboard{scheduler};
    FakeScreens screens;
    FakePointer pointer;
    FakeDragMonitor drags;
    FakePanelWindow window;
    Store store;
    AppSettings settings{preferences, loginItem};
    ClipboardManager clipboard{store, pasteboard, scheduler};
    NotchController controller{
        store, clipboard, settings, {scheduler, screens, pointer, drags, window}};

private:
    static QString filled(const QTemporaryDir& folder, const StoreData& data) {
        QFile file(folder.filePath(QStringLiteral("store.json")));
        if (!file.open(QIODevice::WriteOnly) || file.write(encodeStore(data)) < 0) {
            qFatal("cannot write %s", qPrintable(file.fileName()));
        }
        return folder.path();
    }
};

/// A clip that was copied so long before the virtual clock's start.
inline ClipItem clip(const QString& text, Seconds ago, ClipKind kind = ClipKind::text) {
    const Date copied{ManualScheduler().now().sinceReference - ago.count()};
    return {QUuid::createUuid(), text, kind, copied, false, {}};
}

} // namespace ravelo
