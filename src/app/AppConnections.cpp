#include "app/AppDelegate.h"

#include "app/ClaudeCode.h"
#include "app/HistoryLength.h"
#include "app/HistorySettings.h"
#include "app/KeyWhileLocked.h"
#include "app/StatusItemController.h"
#include "app/StoreNotices.h"
#include "clipboard/ClipboardManager.h"
#include "clipboard/SelectedTexts.h"
#include "monitor/PlanUsage.h"
#include "notices/DesktopNotices.h"
#include "notices/Notices.h"
#include "panel/HotKeyCenter.h"
#include "panel/NotchController.h"
#include "platform/DisplayServer.h"
#include "platform/GlobalShortcut.h"
#include "platform/MotionPreference.h"
#include "platform/Notifier.h"
#include "platform/SessionLock.h"
#include "platform/system/DecoderProcess.h"
#include "platform/system/PreferenceFile.h"
#include "platform/system/TerminationSignals.h"
#include "settings/AppSettings.h"
#include "shelf/ReceivedWatcher.h"
#include "store/Store.h"
#include "ui/PanelView.h"
#include "ui/panel/PanelPicture.h"
#include "vault/Encryption.h"

#include <QGuiApplication>

// How the parts of the program are connected.

namespace ravelo {

namespace {

constexpr double secondsPerMinute = 60;

Backdrop::Kind backdrop(PanelWindow::ShowThrough showThrough) {
    switch (showThrough) {
    case PanelWindow::ShowThrough::blurred:
        return Backdrop::Blurred;
    case PanelWindow::ShowThrough::sharp:
        return Backdrop::Translucent;
    case PanelWindow::ShowThrough::none:
        break;
    }
    return Backdrop::Opaque;
}

} // namespace

void AppDelegate::wire() {
    settings_->onLayoutChange = [this] {
        if (!notch_->isOpen()) {
            notch_->positionCollapsed();
        }
    };
    wireSettings();
    wireShortcut();
    wirePicture();
    statusItem_->onSetup = [this] {
        showSetup();
    };
    statusItem_->onSettings = [this] {
        openSettings();
    };
    const auto followCompositor = [this] {
        view_->features().state.setBackdrop(backdrop(window_->showThrough()));
    };
    followCompositor();
    compositor_ = window_->onShowThroughChange(followCompositor);
    const auto followMotion = [this] {
        view_->features().state.setReducedMotion(platform_.motion->isReduced());
    };
    followMotion();
    motion_ = platform_.motion->onChange(followMotion);
    termination_ = onTerminationSignal([] { QCoreApplication::quit(); });
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, notch_.get(),
                     [this] { flush(); });
    QObject::connect(qGuiApp, &QCoreApplication::aboutToQuit, notch_.get(), [this] {
        view_->features().snippets.editor()->cancel(); // Deletes an image that nothing refers to.
        flush();
    });
}

/// The picture shows what the panel will.
void AppDelegate::wirePicture() {
    PanelFeatures& features = view_->features();
    picture_ = std::make_unique<PanelPicture>(
        PanelPicture::Services{view_->window(), *window_, *notch_, features.state,
                               *features.clips->list(), features.usage, *platform_.scheduler});
    const auto follow = [this](auto* source, auto... changed) {
        (QObject::connect(source, changed, picture_.get(), &PanelPicture::refreshSoon), ...);
    };
    follow(store_.get(), &Store::clipsChanged, &Store::detailsChanged, &Store::snippetsChanged,
           &Store::noteChanged, &Store::shelfChanged, &Store::remindersChanged);
    follow(settings_.get(), &AppSettings::lastTabChanged, &AppSettings::showOriginsChanged,
           &AppSettings::hideClaudeCodeChanged);
    follow(notices_.get(), &Notices::changed);
    follow(&features.pausing, &Pausing::changed);
    follow(&claude_->plan(), &PlanUsage::changed);
}

/// Does what `--toggle` does.
void AppDelegate::wireShortcut() {
    HotKeyCenter::shared().ref =
        platform_.shortcut->onPress([this](const QByteArray& token) { notch_->toggle(token); });
    const auto follow = [this] {
        platform_.shortcut->set(KeyCombination::fromText(settings_->shortcut()));
    };
    if (!settings_->shortcut().isEmpty()) {
        follow();
    }
    QObject::connect(settings_.get(), &AppSettings::shortcutChanged, notch_.get(), follow);
}

/// Settings apply at once, without a restart.
void AppDelegate::wireSettings() {
    historyLength_ = std::make_unique<HistoryLength>(*settings_, *store_,
                                                     platform_.preferences->wasEmpty()
                                                         ? HistoryLength::Preferences::lost
                                                         : HistoryLength::Preferences::kept);
    history_ = std::make_unique<HistorySettings>(HistorySettings::Services{
        *settings_, *store_, *clipboard_, selected_.get(), *view_->features().clips->list()});
}

void AppDelegate::wireNotifications() {
    notifications_ = std::make_unique<DesktopNotices>(
        DesktopNotices::Services{*platform_.notifier, *settings_, *platform_.preferences,
                                 *platform_.scheduler, claude_->plan(), *notices_, [this] {
                                     return screenKey_->isScreenLocked();
                                 }});
    notifications_->onStartTimer = [this](double minutes) {
        store_->startTimer(store_->timerLabel(), minutes);
    };
    QObject::connect(store_.get(), &Store::timerEnded, notifications_.get(), [this] {
        notifications_->timerEnded(store_->timerDuration() / secondsPerMinute);
    });
    arrivals_ = received_->onChange([this] {
        using Arrivals = DesktopNotices::Arrivals;
        notifications_->filesReceived(received_->files(),
                                      received_->receiving() ? Arrivals::goOn : Arrivals::over);
    });
}

void AppDelegate::wireEncryption() {
    QObject::connect(encryption_.get(), &Encryption::opened, store_.get(), &Store::unlock);
    screenKey_ = std::make_unique<KeyWhileLocked>(
        KeyWhileLocked::Services{*settings_, *store_, *encryption_, *platform_.decoder, locks()},
        KeyWhileLocked::Reports{[this] { view_->features().forget(); },
                                [this](const QString& reason) { storeNotices_->keyStayed(reason); },
                                [this] {
                                    notifications_->screenUnlocked();
                                }});
}

} // namespace ravelo
