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

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>

namespace ravelo {

/// Everything that the panel shows, in memory, on one screen of 1440 x 900.
struct UiWorld {
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
    Store store{folder.path(), {scheduler, worker, preferences, pasteboard}};
    AppSettings settings{preferences, loginItem};
    ClipboardManager clipboard{store, pasteboard, scheduler};
    NotchController controller{
        store, clipboard, settings, {scheduler, screens, pointer, drags, window}};

    /// Adds a clip that was copied so long ago.
    void addText(const QString& text, Seconds ago) {
        at(ago, [&] { store.addClip(text); });
    }

    void addImage(const QImage& image, Seconds ago) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        const auto type = QStringLiteral("image/png");
        at(ago, [&] { store.addImageClip({{type}, {{type, png}}}); });
    }

private:
    template <typename Action>
    void at(Seconds ago, Action action) {
        const Date now = scheduler.now();
        scheduler.setNow({now.sinceReference - ago.count()});
        action();
        scheduler.setNow(now);
    }
};

} // namespace ravelo
