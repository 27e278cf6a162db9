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

#include <QTemporaryDir>

namespace ravelo {

inline constexpr Seconds tick{0.02};

/// A controller with everything around it, on one screen of 1440 x 900.
struct PanelWorld {
    explicit PanelWorld(HoverTick::Rest rest = HoverTick::Rest::whenStill)
        : controller(store, clipboard, settings, {scheduler, screens, pointer, drags, window},
                     rest) {}

    void moveTo(double x, double y) {
        pointer.moveTo({x, y});
        scheduler.advance(tick);
    }

    /// The pointer presses somewhere harmless and a drag begins under it.
    void beginDrag(std::optional<bool> files) {
        moveTo(300, 500);
        pointer.press();
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
    FakePanelWindow window;
    Store store{folder.path(), {scheduler, worker, preferences, pasteboard}};
    AppSettings settings{preferences, loginItem};
    ClipboardManager clipboard{store, pasteboard, scheduler};
    NotchController controller;
};

} // namespace ravelo
