#include "app/Platform.h"

#include "monitor/ClaudeEnvironment.h"
#include "panel/NotchGeometry.h"
#include "panel/PointerHotZone.h"
#include "platform/freedesktop/feedback/DesktopNotifier.h"
#include "platform/freedesktop/feedback/ThemeSound.h"
#include "platform/freedesktop/feedback/TrayStatusItem.h"
#include "platform/freedesktop/files/DesktopFileOpener.h"
#include "platform/freedesktop/files/IconTheme.h"
#include "platform/freedesktop/files/KdeConnect.h"
#include "platform/freedesktop/instance/BusInstance.h"
#include "platform/freedesktop/packages/PackageKit.h"
#include "platform/freedesktop/portals/FileTransferPortal.h"
#include "platform/freedesktop/portals/PortalBus.h"
#include "platform/freedesktop/portals/PortalKeyboard.h"
#include "platform/freedesktop/portals/PortalSetting.h"
#include "platform/freedesktop/portals/ShortcutsPortal.h"
#include "platform/freedesktop/secrets/SecretKeyring.h"
#include "platform/freedesktop/secrets/SecretService.h"
#include "platform/freedesktop/session/AutostartEntry.h"
#include "platform/freedesktop/session/LoginSession.h"
#include "platform/freedesktop/session/LoginShutDown.h"
#include "platform/freedesktop/session/ScreenSaverBus.h"
#include "platform/gnome/GnomeDisplayServer.h"
#include "platform/gnome/ShellExtension.h"
#include "platform/system/CurlClient.h"
#include "platform/system/DataLock.h"
#include "platform/system/DecoderProcess.h"
#include "platform/system/DetachedThreads.h"
#include "platform/system/HelperProgram.h"
#include "platform/system/InotifyChanges.h"
#include "platform/system/InotifyFolderWatch.h"
#include "platform/system/NightShiftScript.h"
#include "platform/system/PreferenceFile.h"
#include "platform/system/SpawnedChild.h"
#include "platform/system/SystemPrograms.h"
#include "platform/system/SystemScheduler.h"
#include "platform/system/WorkerThread.h"
#include "platform/wayland/PrepareApplication.h"
#include "platform/wayland/WaylandDisplayServer.h"
#include "platform/wayland/WaylandTrayArea.h"
#include "platform/wayland_client/WaylandClient.h"
#include "platform/x11/PrepareApplication.h"
#include "platform/x11/X11DisplayServer.h"
#include "store/Store.h"
#include "vault/Vault.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QStandardPaths>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Enough for two checks of the shelf and threads of earlier ones that hang on dead mounts.
constexpr int maxFileJobs = 24;

/// Each copied file on a dead mount blocks a thread for ever.
constexpr int maxCopiedFiles = 4;

QString configFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

QDBusConnection systemBus() {
    return QDBusConnection::connectToBus(QDBusConnection::SystemBus, u"ravelo-system"_s);
}

/// The desktop's choice, or else Qt's guess.
QString themeOf(const IconPreference& preference) {
    const QString chosen = preference.theme();
    return chosen.isEmpty() ? QIcon::themeName() : chosen;
}

QDBusConnection portals() {
    return portalBus(helperProgram("ravelo-bus"_L1));
}

Result<void> connectX11(Platform& platform, HoverTick::Rest rest) {
    auto created = x11::X11DisplayServer::create();
    if (!created) {
        return tl::unexpected(created.error());
    }
    x11::X11DisplayServer& server = **created;
    platform.motion = server.motion();
    platform.iconPreference = server.icons();
    platform.trayArea = server.tray();
    platform.shortcut =
        server.isXWayland() ? std::make_unique<ShortcutsPortal>(portals()) : server.shortcut();
    platform.makeHotZone = [&server, rest,
                            scheduler = platform.scheduler.get()](PanelWindow& window) {
        return std::make_unique<PointerHotZone>(*scheduler, server.screens(), server.pointer(),
                                                window, rest);
    };
    platform.display = std::move(*created);
    return {};
}

Result<void> connectWayland(Platform& platform) {
    auto created = wayland::WaylandDisplayServer::create();
    if (!created) {
        return tl::unexpected(created.error());
    }
    wayland::WaylandDisplayServer& server = **created;
    platform.motion = std::make_unique<PortalMotionPreference>(portals());
    platform.iconPreference = std::make_unique<PortalIconPreference>(portals());
    platform.trayArea = std::make_unique<wayland::WaylandTrayArea>();
    platform.shortcut = std::make_unique<ShortcutsPortal>(portals());
    platform.makeHotZone = [&server, scheduler = platform.scheduler.get()](PanelWindow& window) {
        return server.hotZone(*scheduler, window);
    };
    platform.display = std::move(*created);
    return {};
}

Result<void> connectGnome(Platform& platform) {
    auto created = gnome::GnomeDisplayServer::create(gnome::GnomeDisplayServer::usualPath(),
                                                     sessionBus(), handleSize);
    if (!created) {
        return tl::unexpected(created.error());
    }
    gnome::GnomeDisplayServer& server = **created;
    platform.motion = server.motion();
    platform.iconPreference = server.icons();
    platform.trayArea = std::make_unique<gnome::NoTrayArea>();
    platform.shortcut = std::make_unique<ShortcutsPortal>(portals());
    platform.makeHotZone = [&server, scheduler = platform.scheduler.get()](PanelWindow& window) {
        return server.hotZone(*scheduler, window);
    };
    platform.display = std::move(*created);
    return {};
}

void makeSystem(Platform& platform, const QProcessEnvironment& environment) {
    platform.worker = std::make_unique<WorkerThread>();
    platform.vault = std::make_shared<Vault>(Platform::dataFolder());
    platform.dataLock = std::make_shared<DataLock>(
        Platform::lockFile(), Platform::dataFolder() + u"/store.json"_s, platform.vault->keyPath());
    platform.dataOwnership = Handle([lock = platform.dataLock] { lock->release(); });
    platform.preferences = std::make_unique<PreferenceFile>(
        Platform::preferenceFile(),
        PreferenceFile::Services{*platform.scheduler, *platform.worker, platform.mayWrite()});
    platform.jobs = std::make_unique<DetachedThreads>();
    platform.fileJobs = std::make_unique<DetachedThreads>(maxFileJobs);
    platform.copiedFiles = std::make_unique<DetachedThreads>(maxCopiedFiles);
    platform.nightShift = std::make_unique<NightShiftScript>(environment);
    platform.https =
        std::make_unique<CurlClient>((u"Ravelo/" RAVELO_VERSION ""_s).toUtf8(), environment);
    platform.children =
        std::make_unique<SpawnedChild>(*platform.jobs, renewalEnvironment(environment),
                                       renewalFolder(QFile::encodeName(QDir::homePath())));
    platform.makeChildren = [environment, jobs = platform.jobs.get()](const QByteArray& folder) {
        QProcessEnvironment own = renewalEnvironment(environment);
        own.insert(u"CLAUDE_CONFIG_DIR"_s, QFile::decodeName(folder));
        return std::make_unique<SpawnedChild>(
            *jobs, own, renewalFolder(QFile::encodeName(QDir::homePath())) + "-second");
    };
    platform.makeFolderChanges = [] {
        return std::make_unique<InotifyChanges>();
    };
    platform.decoder = std::make_shared<DecoderProcess>(
        QFile::encodeName(helperProgram("ravelo-decode"_L1)),
        QFile::encodeName(Store::clipsFolder(Platform::dataFolder())),
        [vault = platform.vault](const QByteArray& path) {
            return vault->encryptedBytes(QFile::decodeName(path));
        });
    platform.programs = std::make_unique<SystemPrograms>(*platform.jobs, environment);
    platform.folders = std::make_unique<InotifyFolderWatch>();
    platform.transcriptChanges = std::make_unique<InotifyChanges>();
    platform.usageChanges = std::make_unique<InotifyChanges>();
}

void makeDesktop(Platform& platform, const QProcessEnvironment& environment) {
    platform.loginItem = std::make_unique<AutostartEntry>(configFolder() + u"/autostart"_s,
                                                          QCoreApplication::applicationFilePath(),
                                                          *platform.fileJobs);
    platform.sessionLocks.push_back(std::make_unique<LoginSession>(systemBus()));
    platform.sessionLocks.push_back(std::make_unique<ScreenSaverBus>(sessionBus()));
    platform.transfers =
        std::make_unique<FileTransferPortal>(helperProgram("ravelo-portal"_L1), environment);
    platform.sound = std::make_unique<ThemeSound>();
    platform.notifier = std::make_unique<DesktopNotifier>(sessionBus());
    platform.shutDown = std::make_unique<LoginShutDown>(systemBus());
    platform.secrets = std::make_unique<SecretService>(sessionBus());
    platform.keyring = std::make_unique<SecretKeyring>(sessionBus());
    platform.statusItem =
        std::make_unique<TrayStatusItem>(sessionBus(), *platform.trayArea, *platform.scheduler);
    platform.devices = std::make_unique<KdeConnect>(sessionBus());
    platform.opener =
        std::make_unique<DesktopFileOpener>(sessionBus(), *platform.programs, *platform.jobs);
    platform.packages = std::make_unique<PackageKit>(systemBus(), u"ravelo"_s);
    const auto icons = std::make_shared<IconTheme>(IconTheme::usualFolders());
    const auto follow = [icons, &preference = *platform.iconPreference] {
        icons->setName(themeOf(preference));
    };
    follow();
    platform.iconThemeChange = platform.iconPreference->onChange(follow);
    platform.icons = icons;
}

/// On GNOME, which lets programs type by a portal.
void makeTyping(Platform& platform, const QProcessEnvironment& environment) {
    platform.keyboard = std::make_unique<PortalKeyboard>(helperProgram("ravelo-portal"_L1),
                                                         environment, *platform.preferences);
    static_cast<gnome::GnomeDisplayServer&>(*platform.display).typeWith(*platform.keyboard);
}

} // namespace

Platform::Platform() = default;
Platform::Platform(Platform&&) noexcept = default;
Platform::~Platform() = default;

Handle Platform::prepareApplication(Display display) {
    switch (display) {
    case Display::x11:
        return x11::prepareApplication();
    case Display::wayland:
        return wayland::prepareApplication();
    case Display::gnome:
        return prepareWaylandClient();
    }
    return {};
}

Result<Platform> Platform::make(const DisplayChoice& choice, const QProcessEnvironment& environment,
                                HoverTick::Rest rest) {
    Platform platform;
    platform.scheduler = std::make_unique<SystemScheduler>();
    platform.displayText = describe(choice);
    Result<void> connected;
    switch (choice.display) {
    case Display::x11:
        connected = connectX11(platform, rest);
        break;
    case Display::wayland:
        connected = connectWayland(platform);
        break;
    case Display::gnome:
        connected = connectGnome(platform);
        break;
    }
    if (!connected) {
        return tl::unexpected(connected.error());
    }
    using Used = gnome::ShellExtension::Used;
    platform.extension = std::make_unique<gnome::ShellExtension>(
        sessionBus(), choice.display == Display::gnome ? Used::yes : Used::no);
    makeSystem(platform, environment);
    makeDesktop(platform, environment);
    if (choice.display == Display::gnome) {
        makeTyping(platform, environment);
    }
    return platform;
}

QString Platform::dataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Ravelo"_s;
}

QString Platform::lockFile() {
    return dataFolder() + u"/lock"_s;
}

QString Platform::preferenceFile() {
    return configFolder() + u"/ravelo/preferences.json"_s;
}

std::function<Result<void>()> Platform::mayWrite() const {
    return [lock = dataLock] {
        return lock->check();
    };
}

} // namespace ravelo
