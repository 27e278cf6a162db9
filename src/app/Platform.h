#pragma once

#include "app/DisplayChoice.h"
#include "base/Handle.h"
#include "base/Result.h"
#include "panel/HoverTick.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QProcessEnvironment;

namespace ravelo {

class AlertSound;
class ChildProcess;
class DataLock;
class DesktopExtension;
class DetachedJobs;
class DisplayServer;
class FileIcons;
class FileOpener;
class FileTransfer;
class FolderChanges;
class FolderWatch;
class GlobalShortcut;
class HotZone;
class HttpsClient;
class IconPreference;
class DecoderProcess;
class ImageDecoder;
class Keyring;
class LoginItem;
class MotionPreference;
class NearbyDevices;
class NightShift;
class Notifier;
class PackageUpdates;
class PanelWindow;
class PreferenceFile;
class Programs;
class RemoteKeyboard;
class Scheduler;
class SecretStore;
class SessionLock;
class ShutDown;
class StatusItem;
class TrayArea;
class Vault;
class Worker;

/// The adapters that the program runs on in this session. This is the only place that chooses them.
/// Main thread.
struct Platform {
    /// Sets environment variables that Qt reads when the application object is created. Drop the
    /// handle after that: programs that we start must not inherit them.
    [[nodiscard]] static Handle prepareApplication(Display display);

    /// Connects to everything. `environment` is passed to the user's own programs. The error is for
    /// the user.
    [[nodiscard]] static Result<Platform> make(const DisplayChoice& choice,
                                               const QProcessEnvironment& environment,
                                               HoverTick::Rest rest = HoverTick::Rest::whenStill);

    /// The data folder and the lock file.
    [[nodiscard]] static QString dataFolder();
    [[nodiscard]] static QString lockFile();
    [[nodiscard]] static QString preferenceFile();

    /// For data and preferences: an error once another process uses the data. Any thread.
    [[nodiscard]] std::function<Result<void>()> mayWrite() const;

    Platform();
    Platform(Platform&&) noexcept;
    Platform& operator=(Platform&&) = delete;
    ~Platform();

    QString displayText; ///< Which display server this is, and why, for the user.
    std::unique_ptr<RemoteKeyboard> keyboard; ///< Null except on GNOME.
    std::unique_ptr<DisplayServer> display;
    std::function<std::unique_ptr<HotZone>(PanelWindow&)> makeHotZone;
    std::shared_ptr<DataLock> dataLock; ///< Detached jobs may ask it after the rest is gone.
    Handle dataOwnership;               ///< Releases the lock with the rest.
    std::unique_ptr<Scheduler> scheduler;
    std::unique_ptr<Worker> worker;
    std::unique_ptr<PreferenceFile> preferences;
    std::unique_ptr<DetachedJobs> jobs;
    std::unique_ptr<DetachedJobs> fileJobs; ///< For the user's files, on any mount.
    std::unique_ptr<DetachedJobs> copiedFiles;
    std::unique_ptr<LoginItem> loginItem;
    std::vector<std::unique_ptr<SessionLock>> sessionLocks; ///< Beside the display server's own.
    std::unique_ptr<MotionPreference> motion;
    std::unique_ptr<FileTransfer> transfers;
    std::unique_ptr<AlertSound> sound;
    std::unique_ptr<Notifier> notifier;
    std::unique_ptr<NightShift> nightShift;
    std::unique_ptr<ShutDown> shutDown;
    std::unique_ptr<SecretStore> secrets;
    std::unique_ptr<Keyring> keyring;
    std::shared_ptr<Vault> vault; ///< Of the data folder.
    std::unique_ptr<HttpsClient> https;
    std::unique_ptr<ChildProcess> children;
    std::shared_ptr<DecoderProcess> decoder; ///< May still be in use after the rest is gone.
    std::unique_ptr<TrayArea> trayArea;
    std::unique_ptr<StatusItem> statusItem;
    std::unique_ptr<Programs> programs;
    std::unique_ptr<NearbyDevices> devices;
    std::unique_ptr<FolderWatch> folders;
    std::unique_ptr<FolderChanges> transcriptChanges;
    std::unique_ptr<FolderChanges> usageChanges;
    std::function<std::unique_ptr<FolderChanges>()> makeFolderChanges;
    /// Runs Claude Code with its files in this folder.
    std::function<std::unique_ptr<ChildProcess>(const QByteArray& claudeFolder)> makeChildren;
    std::unique_ptr<FileOpener> opener;
    std::unique_ptr<PackageUpdates> packages;
    std::unique_ptr<GlobalShortcut> shortcut;
    std::unique_ptr<DesktopExtension> extension;
    std::unique_ptr<IconPreference> iconPreference;
    std::shared_ptr<FileIcons> icons; ///< Likewise.
    Handle iconThemeChange;
};

} // namespace ravelo
