#pragma once

#include "clipboard/CapturePause.h"
#include "clipboard/ClipboardManager.h"
#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeDisplay.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeNearby.h"
#include "fakes/FakePasteKeys.h"
#include "fakes/FakeServices.h"
#include "fakes/InProcessDecoder.h"
#include "fakes/ManualScheduler.h"
#include "fakes/ManualWorker.h"
#include "fakes/MemoryPasteboard.h"
#include "fakes/MemoryPreferences.h"
#include "notices/Notices.h"
#include "panel/NotchController.h"
#include "panel/Pasting.h"
#include "panel/PointerHotZone.h"
#include "settings/AppSettings.h"
#include "shelf/NearbySend.h"
#include "shelf/ReceivedWatcher.h"
#include "store/Store.h"
#include "store/disk/StoreFile.h"

#include <QFile>
#include <QTemporaryDir>

namespace ravelo {

inline constexpr Seconds tick{0.02};

/// A controller with everything around it, on one screen of 1440 x 900.
struct PanelWorld {
    explicit PanelWorld(HoverTick::Rest rest = HoverTick::Rest::whenStill) : PanelWorld({}, rest) {}

    /// The store begins with `data`.
    explicit PanelWorld(const StoreData& data, HoverTick::Rest rest = HoverTick::Rest::whenStill)
        : store(filled(folder, data),
                {scheduler, worker, preferences, pasteboard, sound, jobs, jobs, jobs, decoder}),
          zone(scheduler, screens, pointer, window, rest),
          controller(store, clipboard, settings,
                     {scheduler,
                      screens,
                      zone,
                      drags,
                      transfers,
                      &barrier,
                      grab,
                      window,
                      {&lock, &otherLock}}) {}

    void moveTo(double x, double y) {
        pointer.moveTo({x, y});
        scheduler.advance(tick);
    }

    /// The pointer presses somewhere harmless and a drag begins under it.
    void beginDrag(std::optional<bool> files, Qt::MouseButton button = Qt::LeftButton) {
        moveTo(100, 500);
        pointer.press(button);
        scheduler.advance(tick);
        drags.begin(files);
        scheduler.advance(tick);
    }

    QTemporaryDir folder;
    ManualScheduler scheduler;
    ManualWorker worker;
    MemoryPreferences preferences;
    FakeLoginItem loginItem;
    MemoryPasteboard pasteboard{scheduler};
    FakeScreens screens;
    FakePointer pointer;
    FakeDragMonitor drags;
    FakeFileTransfer transfers;
    FakeEdgeBarrier barrier;
    FakeInputGrab grab;
    FakePanelWindow window{drags};
    FakeSessionLock lock;
    FakeSessionLock otherLock;
    FakeAlertSound sound;
    FakeNightShift nightShift;
    FakeShutDown shutDown;
    FakeNearbyDevices devices;
    FakePrograms programs{scheduler};
    FakeDetachedJobs jobs{scheduler};
    FakeFolderWatch downloads;
    FakeFileOpener opener;
    std::shared_ptr<const FileIcons> icons = std::make_shared<NoFileIcons>();
    std::shared_ptr<ImageDecoder> decoder = std::make_shared<InProcessDecoder>();
    NearbySend nearby{{devices, programs, jobs, scheduler}};
    ReceivedWatcher received{downloads, scheduler, folder.filePath(QStringLiteral("Downloads"))};
    Notices notices{scheduler};
    Store store;
    AppSettings settings{preferences, loginItem};
    CapturePause pause{preferences, scheduler};
    ClipboardManager clipboard{store, pasteboard, scheduler, jobs, pause};
    PointerHotZone zone;
    NotchController controller;
    FakePasteKeys pasteKeys;
    Pasting pasting{{scheduler, pasteboard, controller, &pasteKeys}};

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
