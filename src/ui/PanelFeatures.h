#pragma once

#include "ui/clips/Clips.h"
#include "ui/controls/Toast.h"
#include "ui/focus/Focus.h"
#include "ui/lists/Deleting.h"
#include "ui/panel/PanelActions.h"
#include "ui/panel/PanelState.h"
#include "ui/panel/Pausing.h"
#include "ui/panel/Tabs.h"
#include "ui/shelf/ShelfFiles.h"
#include "ui/snippets/Snippets.h"
#include "ui/text/Typing.h"
#include "ui/usage/Usage.h"
#include "ui/vault/VaultView.h"

namespace ravelo {

class CapturePause;
class ClipboardManager;
class Notices;
class Pasting;
class Pasteboard;
class Preferences;

/// All features of the panel, and the list of tabs. Main thread.
class PanelFeatures {
public:
    /// All outlive the panel.
    struct Services {
        Store& store;
        AppSettings& settings;
        CapturePause& pause;
        NotchController& controller;
        ClipboardManager& clipboard;
        Notices& notices;
        Pasteboard& pasteboard;
        Scheduler& scheduler;
        Preferences& preferences;
        NightShift& nightShift;
        ShutDown& shutDown;
        PlanUsage& usage;
        ReceivedWatcher& received;
        NearbySend& nearby;
        DetachedJobs& jobs;
        FileOpener& opener;
        std::shared_ptr<const FileIcons> icons;
        std::shared_ptr<ImageDecoder> decoder;
        Encryption* encryption = nullptr; ///< Null: nothing is ever encrypted.
        Pasting* pasting = nullptr;       ///< Null: nothing is ever pasted.
    };

    /// `window` is the panel's, still empty; `engine` is shared by all windows.
    PanelFeatures(const Services& services, const QLocale& locale, const QQuickWindow& window,
                  QQmlEngine& engine);
    PanelFeatures(const PanelFeatures&) = delete;

    /// Drops what still shows or holds something of the store, which was locked or erased.
    void forget();

    PanelFeatures& operator=(const PanelFeatures&) = delete;

    Typing typing;
    VaultView vault;
    Toast toast;
    Deleting deleting;
    Snippets snippets;
    Focus focus;
    Usage usage;
    PanelActions actions;
    Pausing pausing;
    Tabs tabs;
    PanelState state;
    // Owned by `tabs`.
    Clips* clips = nullptr;
    ShelfFiles* shelf = nullptr;

private:
    void followTyping(NotchController& controller, const QQuickWindow& window);
    void followState();
};

} // namespace ravelo
