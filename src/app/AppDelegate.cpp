#include "app/AppDelegate.h"

#include "app/ClaudeCode.h"
#include "app/Commands.h"
#include "app/HistoryLength.h"
#include "app/HistorySettings.h"
#include "app/KeyWhileLocked.h"
#include "app/SecondPlan.h"
#include "app/StatusItemController.h"
#include "app/StoreNotices.h"
#include "app/Transfers.h"
#include "app/Windows.h"
#include "clipboard/CapturePause.h"
#include "clipboard/ClipboardManager.h"
#include "clipboard/SelectedTexts.h"
#include "languages/Languages.h"
#include "monitor/LiveContext.h"
#include "monitor/MonitorFiles.h"
#include "monitor/PlanUsage.h"
#include "notices/DesktopNotices.h"
#include "notices/Notices.h"
#include "panel/HotKeyCenter.h"
#include "panel/NotchController.h"
#include "panel/Pasting.h"
#include "platform/AlertSound.h"
#include "platform/DisplayServer.h"
#include "platform/FileIcons.h"
#include "platform/FileOpener.h"
#include "platform/FileTransfer.h"
#include "platform/GlobalShortcut.h"
#include "platform/HotZone.h"
#include "platform/Keyring.h"
#include "platform/LoginItem.h"
#include "platform/MotionPreference.h"
#include "platform/NightShift.h"
#include "platform/Notifier.h"
#include "platform/PackageUpdates.h"
#include "platform/SecretStore.h"
#include "platform/SessionLock.h"
#include "platform/ShutDown.h"
#include "platform/StatusItem.h"
#include "platform/Worker.h"
#include "platform/system/DecoderProcess.h"
#include "platform/system/PreferenceFile.h"
#include "platform/system/TerminationSignals.h"
#include "settings/AppSettings.h"
#include "shelf/NearbySend.h"
#include "shelf/ReceivedWatcher.h"
#include "store/Store.h"
#include "ui/PanelView.h"
#include "ui/panel/PanelPicture.h"
#include "vault/Encryption.h"
#include "vault/Vault.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QStandardPaths>

#include <cstdlib>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

void quitLater() {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

/// Losing the preferences does not make it a first start.
void rememberFirstStart(Preferences& preferences) {
    for (const auto key : {"onboarded"_L1, "didSetupLogin"_L1, "seededSiteLinksV1"_L1}) {
        preferences.set(key, true);
    }
}

AppDelegate* flushedAtExit = nullptr;

/// Qt calls exit() when the display server ends, as at the end of many sessions. Nothing is
/// destroyed then, not even what is static: Qt 6.8 would complain that its application object still
/// exists.
void flushAtExit(int status, void* /*nothing*/) {
    if (flushedAtExit) {
        flushedAtExit->flush();
        std::_Exit(status);
    }
}

StatusChoice statusChoice(const AppSettings& settings) {
    return {settings.showPeakHours(), settings.handedOverFirst()};
}

} // namespace

AppDelegate::AppDelegate(Platform platform)
    : platform_(std::move(platform)),
      received_(std::make_unique<ReceivedWatcher>(
          *platform_.folders, *platform_.scheduler,
          QStandardPaths::writableLocation(QStandardPaths::DownloadLocation))),
      nearby_(std::make_unique<NearbySend>(NearbySend::Services{
          *platform_.devices, *platform_.programs, *platform_.fileJobs, *platform_.scheduler})),
      notices_(std::make_unique<Notices>(*platform_.scheduler)),
      view_(std::make_unique<PanelView>()) {}

bool AppDelegate::mayRunAlready() {
    return DataLock::mayBeHeld(Platform::lockFile());
}

AppDelegate::~AppDelegate() {
    flush();
    flushedAtExit = nullptr;
    HotKeyCenter::shared().release();
    view_->unload();
}

Result<void> AppDelegate::applicationDidFinishLaunching(DataLock::Claim claim) {
    if (auto claimed = platform_.dataLock->claim(claim); !claimed) {
        return claimed;
    }
    if (platform_.preferences->wasUnreadable()) {
        rememberFirstStart(*platform_.preferences);
    }
    makeStore();
    makeSettings();
    makeCapture();
    makePanel();
    makeWindows();
    makeCommands();
    wire();
    storeNotices_ = std::make_unique<StoreNotices>(
        StoreNotices::Services{*notices_, *store_, *platform_.preferences, *settings_, *clipboard_,
                               *encryption_, view_->features()});
    wireEncryption(); // Notifications ask it whether the screen is locked.
    wireNotifications();
    encryption_->start();
    if (!settings_->onboarded()) {
        showSetup();
    }
    return {};
}

void AppDelegate::makeStore() {
    platform_.vault->look(); // Nobody else changes the folder from now on.
    encryption_ = std::make_unique<Encryption>(Encryption::Services{
        *platform_.jobs, *platform_.worker, *platform_.keyring, platform_.vault,
        platform_.mayWrite(), [lock = platform_.dataLock.get()] {
            lock->followKeyFile();
        }});
    const Store::Services services{*platform_.scheduler,   *platform_.worker,
                                   *platform_.preferences, platform_.display->pasteboard(),
                                   *platform_.sound,       *platform_.fileJobs,
                                   *platform_.copiedFiles, *platform_.jobs,
                                   platform_.decoder,      platform_.mayWrite(),
                                   platform_.vault};
    store_ = std::make_unique<Store>(Platform::dataFolder(), services);
    transfers_ = std::make_unique<Transfers>(
        Transfers::Services{*store_, *platform_.fileJobs, platform_.decoder, platform_.mayWrite()});
    flushedAtExit = this;
    on_exit(flushAtExit, nullptr);
}

void AppDelegate::makeSettings() {
    settings_ = std::make_unique<AppSettings>(*platform_.preferences, *platform_.loginItem);
    useLanguage(settings_->language()); // Before the first text is made.
    settings_->setupLoginItemDefaultIfNeeded();
    platform_.loginItem->repair([this](const Result<void>& repaired) {
        if (!repaired) {
            qWarning("Ravelo login-item error: %s", qUtf8Printable(repaired.error().message));
        }
        settings_->refreshLaunchAtLogin();
    });
}

void AppDelegate::makeCapture() {
    pause_ = std::make_unique<CapturePause>(*platform_.preferences, *platform_.scheduler);
    clipboard_ = std::make_unique<ClipboardManager>(*store_, platform_.display->pasteboard(),
                                                    *platform_.scheduler, *platform_.jobs, *pause_);
    clipboard_->start();
    if (SelectedText* selection = platform_.display->selectedText()) {
        selected_ =
            std::make_unique<SelectedTexts>(*store_, *selection, *platform_.scheduler, *pause_);
    }
}

void AppDelegate::makePanel() {
    window_ = platform_.display->panelWindow(view_->window());
    zone_ = platform_.makeHotZone(*window_);
    notch_ = std::make_unique<NotchController>(
        *store_, *clipboard_, *settings_,
        NotchController::Services{*platform_.scheduler, platform_.display->screens(), *zone_,
                                  platform_.display->drags(), *platform_.transfers,
                                  platform_.display->barrier(), platform_.display->inputGrab(),
                                  *window_, locks()});
    pasting_ = std::make_unique<Pasting>(Pasting::Services{*platform_.scheduler,
                                                           platform_.display->pasteboard(), *notch_,
                                                           platform_.display->pasteKeys()});
    claude_ = std::make_unique<ClaudeCode>(platform_, *settings_);
    view_->load({*store_,
                 *settings_,
                 *pause_,
                 *notch_,
                 *clipboard_,
                 *notices_,
                 platform_.display->pasteboard(),
                 *platform_.scheduler,
                 *platform_.preferences,
                 *platform_.nightShift,
                 *platform_.shutDown,
                 claude_->plan(),
                 *received_,
                 *nearby_,
                 *platform_.fileJobs,
                 *platform_.opener,
                 platform_.icons,
                 platform_.decoder,
                 encryption_.get(),
                 pasting_.get()},
                QLocale());
    claude_->show(view_->features().usage);
}

void AppDelegate::makeWindows() {
    windows_ = std::make_unique<Windows>(
        Windows::Services{platform_, view_->window(), *store_, *settings_, *transfers_, *clipboard_,
                          *notch_, pasting_->isPossible(), selected_ != nullptr, quitLater, [this] {
                              erase([](const Answer&) {});
                          }});
    statusItem_ = std::make_unique<StatusItemController>(
        StatusItemController::Services{*platform_.statusItem, *notch_, *pause_, claude_->context(),
                                       claude_->plan(), claude_->second(), *platform_.scheduler,
                                       *settings_, [this] { windows_->showUpdates(); }, quitLater},
        QLocale());
}

void AppDelegate::makeCommands() {
    commands_ = std::make_unique<Commands>(Commands::Services{
        *store_, *pause_, *notch_, *platform_.scheduler, claude_->context(), claude_->plan(),
        [this] { return statusChoice(*settings_); }, [this] { return claude_->second().plan(); },
        [this] { showSetup(); }, [this] { windows_->showUpdates(); }, quitLater,
        [this](const QString& path, const Commands::Reply& reply) {
            transfers_->exportTo(path, reply);
        },
        [this](const QString& path, const Commands::Reply& reply) {
            transfers_->importFrom(path, reply);
        },
        [this](const Commands::Reply& reply) {
            erase(reply);
        }});
}

std::vector<SessionLock*> AppDelegate::locks() {
    std::vector<SessionLock*> locks = platform_.display->locks();
    for (const auto& lock : platform_.sessionLocks) {
        locks.push_back(lock.get());
    }
    return locks;
}

bool AppDelegate::answerLater(const QStringList& request,
                              const std::function<void(const Answer&)>& reply) {
    return commands_->answerLater(request, reply);
}

void AppDelegate::erase(const std::function<void(const Answer&)>& reply) {
    view_->features().forget();
    store_->erase([this, reply](const Result<void>& data) {
        platform_.preferences->erase([this, reply, data](const Result<void>& preferences) {
            const auto cache = std::make_shared<Result<void>>();
            platform_.worker->run(
                [cache] { *cache = eraseMonitorCache(QFile::encodeName(QDir::homePath())); },
                [this, reply, data, preferences, cache] {
                    erased(!data ? data : !preferences ? preferences : *cache, reply);
                });
        });
    });
}

void AppDelegate::erased(const Result<void>& done,
                         const std::function<void(const Answer&)>& reply) {
    if (!done) {
        store_->resume();
        platform_.preferences->resume();
        encryption_->resume();
        notices_->deletionEnded(done.error().message);
        reply({1, {}, done.error().message});
        return;
    }
    encryption_->eraseKey([reply] {
        reply({});
        quitLater();
    });
}

void AppDelegate::openSettings() {
    notch_->openSettings();
}

void AppDelegate::showSetup() {
    windows_->showSetup();
}

Answer AppDelegate::answer(const QStringList& request, const QByteArray& activationToken) {
    return commands_->answer(request, activationToken);
}

void AppDelegate::flush() {
    if (store_) {
        store_->flush();
    }
    platform_.preferences->flush();
}

} // namespace ravelo
