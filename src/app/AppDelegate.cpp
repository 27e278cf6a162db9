#include "app/AppDelegate.h"

#include "app/Commands.h"
#include "app/ShelfServices.h"
#include "app/StatusItemController.h"
#include "clipboard/ClipboardManager.h"
#include "monitor/ClaudeEnvironment.h"
#include "monitor/LiveContext.h"
#include "monitor/PlanUsage.h"
#include "notices/Notices.h"
#include "panel/NotchController.h"
#include "platform/DisplayServer.h"
#include "platform/freedesktop/AutostartEntry.h"
#include "platform/freedesktop/BusInstance.h"
#include "platform/freedesktop/FileTransferPortal.h"
#include "platform/freedesktop/LoginSession.h"
#include "platform/freedesktop/LoginShutDown.h"
#include "platform/freedesktop/PackageKit.h"
#include "platform/freedesktop/ScreenSaverBus.h"
#include "platform/freedesktop/SecretService.h"
#include "platform/freedesktop/ThemeSound.h"
#include "platform/freedesktop/TrayStatusItem.h"
#include "platform/system/CurlClient.h"
#include "platform/system/DecoderProcess.h"
#include "platform/system/DetachedThreads.h"
#include "platform/system/HelperProgram.h"
#include "platform/system/InotifyChanges.h"
#include "platform/system/NightShiftScript.h"
#include "platform/system/PreferenceFile.h"
#include "platform/system/SpawnedChild.h"
#include "platform/system/SystemScheduler.h"
#include "platform/system/TerminationSignals.h"
#include "platform/system/WorkerThread.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "ui/PanelView.h"
#include "ui/windows/OnboardingController.h"
#include "ui/windows/SettingsWindow.h"
#include "ui/windows/UpdateWindow.h"
#include "updates/Updater.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QStandardPaths>

#include <cstdlib>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Room for two looks at the shelf and what a dead mount has left of earlier ones.
constexpr int maxFileJobs = 24;

/// Someone may copy a few files in a row; each holds a thread for good if its mount is dead.
constexpr int maxCopiedFiles = 4;

QString dataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Ravelo"_s;
}

QString lockFile() {
    return dataFolder() + u"/lock"_s;
}

QString configFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

QByteArray home() {
    return QFile::encodeName(QDir::homePath());
}

QDBusConnection systemBus() {
    return QDBusConnection::connectToBus(QDBusConnection::SystemBus, u"ravelo-system"_s);
}

void quitLater() {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

/// What a first start does must not be done again if no more than the preferences were lost.
void rememberFirstStart(Preferences& preferences) {
    for (const auto key : {"onboarded"_L1, "didSetupLogin"_L1, "seededSiteLinksV1"_L1}) {
        preferences.set(key, true);
    }
}

// Qt ends the process by exit() when the display server goes, which is how many sessions end.
AppDelegate* flushedAtExit = nullptr;

void flushAtExit() {
    if (flushedAtExit) {
        flushedAtExit->flush();
    }
}

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

TooLargeCopy::Measure measure(TooLarge::Kind kind) {
    switch (kind) {
    case TooLarge::Kind::text:
        return TooLargeCopy::Measure::bytesOfText;
    case TooLarge::Kind::image:
        return TooLargeCopy::Measure::bytesOfImage;
    case TooLarge::Kind::pixels:
        break;
    }
    return TooLargeCopy::Measure::pixelsOfImage;
}

Updater& updater() {
    return Updater::shared([] {
        return std::make_unique<Updater>(std::make_unique<PackageKit>(systemBus(), u"ravelo"_s),
                                         u"" RAVELO_VERSION ""_s);
    });
}

/// What main() adds to the environment concerns none of these folders.
QByteArrayList claudeFolders() {
    return otherClaudeFolders(home(), QProcessEnvironment::systemEnvironment());
}

} // namespace

AppDelegate::AppDelegate(DisplayServer& display, const QProcessEnvironment& environment,
                         HoverTick::Rest rest)
    : display_(display),
      rest_(rest),
      dataLock_(std::make_unique<DataLock>(lockFile(), dataFolder() + u"/store.json"_s)),
      scheduler_(std::make_unique<SystemScheduler>()),
      worker_(std::make_unique<WorkerThread>()),
      preferences_(std::make_unique<PreferenceFile>(
          configFolder() + u"/ravelo/preferences.json"_s,
          PreferenceFile::Services{*scheduler_, *worker_, mayWrite()})),
      jobs_(std::make_unique<DetachedThreads>()),
      fileJobs_(std::make_unique<DetachedThreads>(maxFileJobs)),
      copiedFiles_(std::make_unique<DetachedThreads>(maxCopiedFiles)),
      loginItem_(std::make_unique<AutostartEntry>(
          configFolder() + u"/autostart"_s, QCoreApplication::applicationFilePath(), *fileJobs_)),
      loginSession_(std::make_unique<LoginSession>(systemBus())),
      screenSaver_(std::make_unique<ScreenSaverBus>(sessionBus())),
      transfers_(
          std::make_unique<FileTransferPortal>(helperProgram("ravelo-portal"_L1), environment)),
      sound_(std::make_unique<ThemeSound>()),
      nightShift_(std::make_unique<NightShiftScript>(environment)),
      shutDown_(std::make_unique<LoginShutDown>(systemBus())),
      secrets_(std::make_unique<SecretService>(sessionBus())),
      https_(std::make_unique<CurlClient>((u"Ravelo/" RAVELO_VERSION ""_s).toUtf8(), environment)),
      children_(std::make_unique<SpawnedChild>(*jobs_, renewalEnvironment(environment),
                                               renewalFolder(home()))),
      decoder_(
          std::make_shared<DecoderProcess>(QFile::encodeName(helperProgram("ravelo-decode"_L1)),
                                           QFile::encodeName(Store::clipsFolder(dataFolder())))),
      tray_(std::make_unique<TrayStatusItem>(sessionBus(), display_.tray(), *scheduler_)),
      shelf_(std::make_unique<ShelfServices>(*scheduler_, *jobs_, *fileJobs_, display_.icons())),
      notices_(std::make_unique<Notices>(*scheduler_)),
      view_(std::make_unique<PanelView>()) {}

bool AppDelegate::mayRunAlready() {
    return DataLock::mayBeHeld(lockFile());
}

AppDelegate::~AppDelegate() {
    flush();
    flushedAtExit = nullptr;
    view_->unload();
}

std::function<Result<void>()> AppDelegate::mayWrite() {
    return [this] {
        return dataLock_->check();
    };
}

Result<void> AppDelegate::applicationDidFinishLaunching(DataLock::Claim claim) {
    if (auto claimed = dataLock_->claim(claim); !claimed) {
        return claimed;
    }
    if (preferences_->wasUnreadable()) {
        rememberFirstStart(*preferences_);
    }
    updater();
    store_ = std::make_unique<Store>(dataFolder(),
                                     Store::Services{*scheduler_, *worker_, *preferences_,
                                                     display_.pasteboard(), *sound_, *fileJobs_,
                                                     *copiedFiles_, *jobs_, decoder_, mayWrite()});
    flushedAtExit = this;
    std::atexit(flushAtExit);

    settings_ = std::make_unique<AppSettings>(*preferences_, *loginItem_);
    settings_->setupLoginItemDefaultIfNeeded();
    loginItem_->repair([this](const Result<void>& repaired) {
        if (!repaired) {
            qWarning("Ravelo login-item error: %s", qUtf8Printable(repaired.error().message));
        }
        settings_->refreshLaunchAtLogin();
    });

    clipboard_ =
        std::make_unique<ClipboardManager>(*store_, display_.pasteboard(), *scheduler_, *jobs_);
    clipboard_->start();

    window_ = display_.panelWindow(view_->window());
    notch_ = std::make_unique<NotchController>(
        *store_, *clipboard_, *settings_,
        NotchController::Services{
            *scheduler_,
            display_.screens(),
            display_.pointer(),
            display_.drags(),
            *transfers_,
            display_.barrier(),
            display_.inputGrab(),
            *window_,
            {&display_.lock(), &display_.cover(), loginSession_.get(), screenSaver_.get()}},
        rest_);
    view_->load({*store_, *settings_, *notch_, *notices_, display_.pasteboard(), *scheduler_,
                 *preferences_, *nightShift_, *shutDown_, planUsage(), shelf_->received,
                 shelf_->nearby, *fileJobs_, shelf_->opener, shelf_->icons, decoder_},
                QLocale());
    provideWindows();
    const auto checkUpdates = [this] {
        notch_->dismiss(); // It would cover the window.
        updateWindow_->show();
    };
    statusItem_ = std::make_unique<StatusItemController>(
        StatusItemController::Services{*tray_, *notch_, liveContext(), *scheduler_, *settings_,
                                       checkUpdates, quitLater},
        QLocale());
    commands_ = std::make_unique<Commands>(
        Commands::Services{*store_, *notch_, *scheduler_, liveContext(), planUsage(),
                           [this] { showSetup(); }, checkUpdates, quitLater});
    wire();
    wireNotices();
    if (!settings_->onboarded()) {
        showSetup();
    }
    return {};
}

LiveContext& AppDelegate::liveContext() {
    return LiveContext::shared([this] {
        return std::make_unique<LiveContext>(LiveContext::Services{*scheduler_, *jobs_}, home(),
                                             std::make_unique<InotifyChanges>(), claudeFolders());
    });
}

PlanUsage& AppDelegate::planUsage() {
    return PlanUsage::shared([this] {
        return std::make_unique<PlanUsage>(
            UsageQuery::Services{*scheduler_, *jobs_, *secrets_, *https_, *children_}, home(),
            PlanUsage::provider(), claudeFolders());
    });
}

void AppDelegate::provideWindows() {
    const TitledWindow::Beside beside{view_->window(), [this](QWindow& window) {
                                          return display_.windowFrame(window);
                                      }};
    settingsWindow_ = std::make_unique<SettingsWindow>(
        SettingsWindow::Subjects{beside, *store_, *settings_, quitLater});
    onboarding_ = std::make_unique<OnboardingController>(beside, *settings_, display_.screens());
    updateWindow_ = std::make_unique<UpdateWindow>(beside, updater());
    QObject::connect(notch_.get(), &NotchController::settingsRequested, settingsWindow_.get(),
                     &SettingsWindow::show);
}

void AppDelegate::wire() {
    settings_->onLayoutChange = [this] {
        if (!notch_->isOpen()) {
            notch_->positionCollapsed();
        }
    };
    wireSettings();
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
        view_->features().state.setReducedMotion(display_.motion().isReduced());
    };
    followMotion();
    motion_ = display_.motion().onChange(followMotion);
    termination_ = onTerminationSignal([] { QCoreApplication::quit(); });
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, notch_.get(),
                     [this] { flush(); });
    QObject::connect(qGuiApp, &QCoreApplication::aboutToQuit, notch_.get(), [this] {
        view_->features().snippets.editor()->cancel(); // Leaves no image that nothing refers to.
        flush();
    });
}

/// What the user chose counts from now on, without a restart.
void AppDelegate::wireSettings() {
    const auto follow = [this] {
        store_->setHistoryRules({settings_->newestFirst() ? HistoryRules::Order::newerFirst
                                                          : HistoryRules::Order::olderFirst,
                                 settings_->historyLength()});
        clipboard_->setTextEnds(settings_->keepTextsExactly() ? TextEnds::kept : TextEnds::trimmed);
    };
    follow();
    for (const auto changed : {&AppSettings::newestFirstChanged, &AppSettings::historyLengthChanged,
                               &AppSettings::keepTextsExactlyChanged}) {
        QObject::connect(settings_.get(), changed, notch_.get(), follow);
    }
    const auto look = [this] {
        view_->features().usage.setInstalled(liveContext().installed());
    };
    look();
    QObject::connect(&liveContext(), &LiveContext::changed, notch_.get(), look);
}

/// What the panel says about saving, about files that could not be read and about copies that are
/// too large.
void AppDelegate::wireNotices() {
    const auto follow = [this](Notices::Source source) {
        return [this, source](const SaveOutcome& outcome) {
            using Kind = SaveOutcome::Kind;
            if (!outcome.putAside.isEmpty()) {
                notices_->putAside(source, outcome.putAside);
            }
            if (outcome.kind == Kind::saved) {
                notices_->saved(source);
            } else {
                notices_->saveFailed(source, outcome.reason,
                                     outcome.kind == Kind::failed ? Notices::Retry::yes
                                                                  : Notices::Retry::no);
            }
        };
    };
    QObject::connect(store_.get(), &Store::saveEnded, notices_.get(),
                     follow(Notices::Source::store));
    preferences_->onSaved = follow(Notices::Source::preferences);
    QObject::connect(notices_.get(), &Notices::tryAgain, notices_.get(), [this] {
        store_->save();
        preferences_->retry();
    });
    QObject::connect(notices_.get(), &Notices::openFolder, notices_.get(),
                     [this](const QString& path) {
                         view_->features().shelf->showInFolder(QUrl::fromLocalFile(path));
                     });
    QObject::connect(clipboard_.get(), &ClipboardManager::tooLarge, clipboard_.get(),
                     [this](const TooLarge& copy) {
                         view_->features().clips->showTooLarge({measure(copy.kind), copy.amount});
                     });
}

void AppDelegate::openSettings() {
    notch_->openSettings();
}

void AppDelegate::showSetup() {
    notch_->dismiss(); // It would cover the window.
    onboarding_->show();
}

Answer AppDelegate::answer(const QStringList& request) {
    return commands_->answer(request);
}

void AppDelegate::flush() {
    if (store_) {
        store_->flush();
    }
    preferences_->flush();
}

} // namespace ravelo
