#include "app/AppDelegate.h"

#include "app/Commands.h"
#include "app/FileChoice.h"
#include "app/SecondPlan.h"
#include "app/StatusItemController.h"
#include "app/Transfers.h"
#include "clipboard/CapturePause.h"
#include "clipboard/ClipboardManager.h"
#include "clipboard/SelectedTexts.h"
#include "languages/Languages.h"
#include "monitor/ClaudeEnvironment.h"
#include "monitor/LiveContext.h"
#include "monitor/PlanUsage.h"
#include "notices/DesktopNotices.h"
#include "notices/Notices.h"
#include "panel/HotKeyCenter.h"
#include "panel/NotchController.h"
#include "panel/Pasting.h"
#include "platform/AlertSound.h"
#include "platform/ChildProcess.h"
#include "platform/DesktopExtension.h"
#include "platform/DisplayServer.h"
#include "platform/FileIcons.h"
#include "platform/FileOpener.h"
#include "platform/FileTransfer.h"
#include "platform/FolderChanges.h"
#include "platform/GlobalShortcut.h"
#include "platform/HotZone.h"
#include "platform/HttpsClient.h"
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
#include "platform/system/DecoderProcess.h"
#include "platform/system/PreferenceFile.h"
#include "platform/system/TerminationSignals.h"
#include "settings/AppSettings.h"
#include "shelf/NearbySend.h"
#include "shelf/ReceivedWatcher.h"
#include "store/Store.h"
#include "ui/PanelView.h"
#include "ui/panel/PanelPicture.h"
#include "ui/windows/OnboardingController.h"
#include "ui/windows/SettingsWindow.h"
#include "ui/windows/UpdateWindow.h"
#include "updates/Updater.h"
#include "vault/Encryption.h"
#include "vault/Vault.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QStandardPaths>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr double secondsPerMinute = 60;

QByteArray home() {
    return QFile::encodeName(QDir::homePath());
}

void quitLater() {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

/// Losing the preferences does not make it a first start.
void rememberFirstStart(Preferences& preferences) {
    for (const auto key : {"onboarded"_L1, "didSetupLogin"_L1, "seededSiteLinksV1"_L1}) {
        preferences.set(key, true);
    }
}

// Qt calls exit() when the display server ends, as at the end of many sessions.
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

CaptureRules captureRules(const AppSettings& settings) {
    using Secrets = CaptureRules::Secrets;
    const int minutes = settings.forgetSecrets();
    return {settings.ignoredPrograms(), ignorePatterns(settings.ignoredPatterns()),
            minutes == AppSettings::asAnyText   ? Secrets::asAnyText
            : minutes == AppSettings::neverKept ? Secrets::dropped
                                                : Secrets::inMemory,
            settings.keyLikeWords() ? KeyLikeWords::yes : KeyLikeWords::no,
            settings.showOrigins() ? CaptureRules::ProgramNames::kept
                                   : CaptureRules::ProgramNames::dropped};
}

StatusChoice statusChoice(const AppSettings& settings) {
    return {settings.showPeakHours(), settings.handedOverFirst()};
}

/// Created by the first call, which must pass the packages.
Updater& updater(std::unique_ptr<PackageUpdates> packages = {}) {
    return Updater::shared([&packages] {
        return std::make_unique<Updater>(std::move(packages), u"" RAVELO_VERSION ""_s);
    });
}

/// None of these folders depends on what main() adds to the environment.
QByteArrayList claudeFolders() {
    return otherClaudeFolders(home(), QProcessEnvironment::systemEnvironment());
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
    updater(std::move(platform_.packages));
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
    std::atexit(flushAtExit);

    settings_ = std::make_unique<AppSettings>(*platform_.preferences, *platform_.loginItem);
    useLanguage(settings_->language()); // Before the first text is made.
    settings_->setupLoginItemDefaultIfNeeded();
    platform_.loginItem->repair([this](const Result<void>& repaired) {
        if (!repaired) {
            qWarning("Ravelo login-item error: %s", qUtf8Printable(repaired.error().message));
        }
        settings_->refreshLaunchAtLogin();
    });

    pause_ = std::make_unique<CapturePause>(*platform_.preferences, *platform_.scheduler);
    clipboard_ = std::make_unique<ClipboardManager>(*store_, platform_.display->pasteboard(),
                                                    *platform_.scheduler, *platform_.jobs, *pause_);
    clipboard_->start();
    if (SelectedText* selection = platform_.display->selectedText()) {
        selected_ =
            std::make_unique<SelectedTexts>(*store_, *selection, *platform_.scheduler, *pause_);
    }

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
    view_->load({*store_, *settings_, *pause_, *notch_, *notices_, platform_.display->pasteboard(),
                 *platform_.scheduler, *platform_.preferences, *platform_.nightShift,
                 *platform_.shutDown, planUsage(), *received_, *nearby_, *platform_.fileJobs,
                 *platform_.opener, platform_.icons, platform_.decoder, encryption_.get(),
                 pasting_.get()},
                QLocale());
    provideWindows();
    const auto checkUpdates = [this] {
        notch_->dismiss(); // It would cover the window.
        updateWindow_->show();
    };
    wireSecondPlan();
    statusItem_ = std::make_unique<StatusItemController>(
        StatusItemController::Services{*platform_.statusItem, *notch_, *pause_, liveContext(),
                                       planUsage(), *second_, *platform_.scheduler, *settings_,
                                       checkUpdates, quitLater},
        QLocale());
    commands_ = std::make_unique<Commands>(Commands::Services{
        *store_, *pause_, *notch_, *platform_.scheduler, liveContext(), planUsage(),
        [this] { return statusChoice(*settings_); }, [this] { return second_->plan(); },
        [this] { showSetup(); }, checkUpdates, quitLater,
        [this](const QString& path, const Commands::Reply& reply) {
            transfers_->exportTo(path, reply);
        },
        [this](const QString& path, const Commands::Reply& reply) {
            transfers_->importFrom(path, reply);
        },
        [this](const Commands::Reply& reply) {
            erase(reply);
        }});
    wire();
    wireNotices();
    wireNotifications();
    wireEncryption();
    if (!settings_->onboarded()) {
        showSetup();
    }
    return {};
}

std::vector<SessionLock*> AppDelegate::locks() {
    std::vector<SessionLock*> locks = platform_.display->locks();
    for (const auto& lock : platform_.sessionLocks) {
        locks.push_back(lock.get());
    }
    return locks;
}

LiveContext& AppDelegate::liveContext() {
    return LiveContext::shared([this] {
        return std::make_unique<LiveContext>(
            LiveContext::Services{*platform_.scheduler, *platform_.jobs}, home(),
            std::move(platform_.transcriptChanges), claudeFolders());
    });
}

PlanUsage& AppDelegate::planUsage() {
    return PlanUsage::shared([this] {
        return std::make_unique<PlanUsage>(
            UsageQuery::Services{*platform_.scheduler, *platform_.jobs, *platform_.secrets,
                                 *platform_.https, *platform_.children},
            home(), std::move(platform_.usageChanges), PlanUsage::provider(), claudeFolders());
    });
}

void AppDelegate::provideWindows() {
    const TitledWindow::Beside beside{view_->window(), [this](QWindow& window) {
                                          return platform_.display->windowFrame(window);
                                      }};
    settingsWindow_ = std::make_unique<SettingsWindow>(SettingsWindow::Subjects{
        beside, *store_, *settings_, quitLater, platform_.displayText, platform_.extension.get(),
        platform_.display->pasteboard().namesPrograms(), selected_ != nullptr,
        [this] { erase([](const Answer&) {}); }, platform_.shortcut.get(), pasting_->isPossible(),
        [this](const QString& text) { clipboard_->copyText(text); }, platform_.notifier.get(),
        snippetFiles()});
    onboarding_ =
        std::make_unique<OnboardingController>(beside, *settings_, platform_.display->screens(),
                                               platform_.extension.get(), platform_.shortcut.get());
    updateWindow_ = std::make_unique<UpdateWindow>(beside, updater());
    QObject::connect(notch_.get(), &NotchController::settingsRequested, settingsWindow_.get(),
                     &SettingsWindow::show);
}

SettingsWindow::SnippetFiles AppDelegate::snippetFiles() {
    using Done = SettingsWindow::SnippetFiles::Done;
    const auto withFile = [this](FileChoice::Kind kind,
                                 void (Transfers::*transfer)(const QString&, Done)) {
        return [this, kind, transfer](QWindow& over, const Done& done) {
            FileChoice::ask(over, kind, [this, transfer, done](const QString& path) {
                (transfers_.get()->*transfer)(path, done);
            });
        };
    };
    return {withFile(FileChoice::Kind::toWrite, &Transfers::exportSnippets),
            withFile(FileChoice::Kind::toRead, &Transfers::importSnippets)};
}

void AppDelegate::wire() {
    settings_->onLayoutChange = [this] {
        if (!notch_->isOpen()) {
            notch_->positionCollapsed();
        }
    };
    wireSettings();
    wireSecrets();
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
                               *features.clips->list(), *platform_.scheduler});
    const auto follow = [this](auto* source, auto... changed) {
        (QObject::connect(source, changed, picture_.get(), &PanelPicture::refreshSoon), ...);
    };
    follow(store_.get(), &Store::clipsChanged, &Store::snippetsChanged, &Store::noteChanged,
           &Store::shelfChanged, &Store::remindersChanged);
    follow(settings_.get(), &AppSettings::lastTabChanged, &AppSettings::hideClaudeCodeChanged);
    follow(notices_.get(), &Notices::changed);
    follow(&features.pausing, &Pausing::changed);
    follow(&planUsage(), &PlanUsage::changed);
}

/// Settings apply at once, without a restart.
void AppDelegate::wireSettings() {
    const auto follow = [this] {
        store_->setHistoryRules({settings_->newestFirst() ? HistoryRules::Order::newerFirst
                                                          : HistoryRules::Order::olderFirst,
                                 settings_->historyLength(), settings_->keepDays() * 86400.0,
                                 qint64(settings_->textLimit()) << 20,
                                 qint64(settings_->imageLimit()) << 20});
        followRules();
    };
    follow();
    for (const auto changed :
         {&AppSettings::newestFirstChanged, &AppSettings::historyLengthChanged,
          &AppSettings::keepDaysChanged, &AppSettings::textLimitChanged,
          &AppSettings::imageLimitChanged, &AppSettings::keepTextsExactlyChanged,
          &AppSettings::ignoredProgramsChanged, &AppSettings::ignoredPatternsChanged,
          &AppSettings::forgetSecretsChanged, &AppSettings::keyLikeWordsChanged,
          &AppSettings::keepSelectedTextChanged, &AppSettings::showOriginsChanged}) {
        QObject::connect(settings_.get(), changed, notch_.get(), follow);
    }
    const auto look = [this] {
        view_->features().usage.setInstalled(liveContext().installed());
    };
    look();
    QObject::connect(&liveContext(), &LiveContext::changed, notch_.get(), look);
    const auto followSession = [this] {
        using Session = ContextReader::Session;
        liveContext().setSession(settings_->keepSession() ? Session::steady : Session::newest);
    };
    followSession();
    QObject::connect(settings_.get(), &AppSettings::keepSessionChanged, notch_.get(),
                     [this, followSession] {
                         followSession();
                         liveContext().refresh();
                     });
}

void AppDelegate::followRules() {
    const auto ends = settings_->keepTextsExactly() ? TextEnds::kept : TextEnds::trimmed;
    const CaptureRules rules = captureRules(*settings_);
    clipboard_->setTextEnds(ends);
    clipboard_->setRules(rules);
    view_->features().clips->list()->setOrigins(
        settings_->showOrigins() ? ClipListModel::Origins::shown : ClipListModel::Origins::hidden);
    if (selected_) {
        selected_->setTextEnds(ends);
        selected_->setRules(rules);
        selected_->setOn(settings_->keepSelectedText());
    }
    const int minutes = settings_->forgetSecrets();
    if (minutes == AppSettings::asAnyText) {
        store_->keepSecrets();
    }
    store_->setForgetAfter(
        minutes == AppSettings::asAnyText ? std::nullopt : std::optional(Seconds(minutes * 60)));
}

/// The first time, the panel explains it.
void AppDelegate::wireSecrets() {
    QObject::connect(clipboard_.get(), &ClipboardManager::secretKept, notices_.get(),
                     [this](const QString& id) {
                         const auto key = u"secretsExplained"_s;
                         const SecretForm* form = SecretForms::withId(id);
                         if (form && !platform_.preferences->value(key).toBool()) {
                             platform_.preferences->set(key, true);
                             notices_->secretKept(form->name);
                         }
                     });
    QObject::connect(notices_.get(), &Notices::keepSecrets, settings_.get(),
                     [this] { settings_->setForgetSecrets(AppSettings::asAnyText); });
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

/// Messages about saving, unreadable files, and copies that are too large.
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
    QObject::connect(store_.get(), &Store::removalEnded, notices_.get(), &Notices::deletionEnded);
    platform_.preferences->onSaved = follow(Notices::Source::preferences);
    QObject::connect(notices_.get(), &Notices::tryAgain, notices_.get(), [this] {
        store_->save();
        platform_.preferences->retry();
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

void AppDelegate::wireSecondPlan() {
    second_ = std::make_unique<SecondPlan>([this](const QByteArray& folder) {
        auto children = platform_.makeChildren(folder);
        auto usage = std::make_unique<PlanUsage>(
            UsageQuery::Services{*platform_.scheduler, *platform_.jobs, *platform_.secrets,
                                 *platform_.https, *children},
            home(), platform_.makeFolderChanges(), PlanUsage::provider(), QByteArrayList(), folder);
        return SecondPlan::Made{std::move(children), std::move(usage)};
    });
    const auto show = [this] {
        const auto plan = second_->plan();
        view_->features().usage.setSecondAccount(plan ? otherPlanLine(*plan) : QString());
    };
    QObject::connect(second_.get(), &SecondPlan::changed, second_.get(), show);
    const auto follow = [this] {
        second_->setFolder(settings_->secondAccount(), QDir::homePath());
    };
    follow();
    QObject::connect(settings_.get(), &AppSettings::secondAccountChanged, second_.get(), follow);
}

void AppDelegate::wireNotifications() {
    notifications_ = std::make_unique<DesktopNotices>(DesktopNotices::Services{
        *platform_.notifier, *settings_, *platform_.preferences, *platform_.scheduler, planUsage(),
        *notices_, [this] {
            return std::ranges::any_of(locks(),
                                       [](const SessionLock* lock) { return lock->isLocked(); });
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

/// The key opens the store; what waits for it is said; a locked screen can take it away.
void AppDelegate::wireEncryption() {
    QObject::connect(encryption_.get(), &Encryption::opened, store_.get(), &Store::unlock);
    const auto follow = [this] {
        const VaultView& vault = view_->features().vault;
        const bool hasCopies = store_->isLocked() && !store_->clips().isEmpty();
        const bool possible = vault.canUnlock() || vault.asksPassphrase();
        notices_->setLocked(
            hasCopies ? vault.title() : QString(),
            QCoreApplication::translate("ravelo::AppDelegate", "New copies are sealed until then."),
            possible ? QCoreApplication::translate("ravelo::AppDelegate", "Unlock\u2026")
                     : QString());
    };
    QObject::connect(encryption_.get(), &Encryption::changed, notices_.get(), follow);
    QObject::connect(store_.get(), &Store::lockedChanged, notices_.get(), follow);
    QObject::connect(store_.get(), &Store::clipsChanged, notices_.get(), follow);
    QObject::connect(notices_.get(), &Notices::unlock, &view_->features().vault,
                     &VaultView::unlock);
    for (SessionLock* lock : locks()) {
        lockChanges_.push_back(lock->onChange([this] { followScreenLock(); }));
    }
    encryption_->start();
}

void AppDelegate::followScreenLock() {
    const auto all = locks();
    const bool locked =
        std::ranges::any_of(all, [](const SessionLock* lock) { return lock->isLocked(); });
    if (locked == std::exchange(screenLocked_, locked)) {
        return;
    }
    if (!locked) {
        notifications_->followPlan();
        store_->lock({}); // It may still wait for a save.
        encryption_->getKey();
    } else if (settings_->forgetKeyWhileLocked() && encryption_->state() == Encryption::Open) {
        store_->lock([this] {
            encryption_->forgetKey();
            if (!encryption_->isLocked()) { // It is converting files.
                store_->unlock();
            }
            platform_.decoder->forgetOwn();
            view_->features().toast.reset(); // It may offer to undo a deletion.
        });
    }
}

bool AppDelegate::answerLater(const QStringList& request,
                              const std::function<void(const Answer&)>& reply) {
    return commands_->answerLater(request, reply);
}

void AppDelegate::erase(const std::function<void(const Answer&)>& reply) {
    store_->erase([this, reply](const Result<void>& data) {
        platform_.preferences->erase([this, reply, data](const Result<void>& preferences) {
            const Result<void>& done = data ? preferences : data;
            if (!done) {
                notices_->deletionEnded(done.error().message);
                reply({1, {}, done.error().message});
                return;
            }
            encryption_->eraseKey([reply] {
                reply({});
                quitLater();
            });
        });
    });
}

void AppDelegate::openSettings() {
    notch_->openSettings();
}

void AppDelegate::showSetup() {
    notch_->dismiss(); // It would cover the window.
    onboarding_->show();
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
