#pragma once

#include "base/Handle.h"
#include "base/Result.h"
#include "panel/HoverTick.h"
#include "platform/Answer.h"
#include "platform/system/DataLock.h"

#include <QStringList>

#include <functional>
#include <memory>

class QProcessEnvironment;

namespace ravelo {

class AlertSound;
class AppSettings;
class ChildProcess;
class ClipboardManager;
class Commands;
class DetachedJobs;
class DisplayServer;
class FileTransfer;
class HttpsClient;
class ImageDecoder;
class LiveContext;
class LoginItem;
class NightShift;
class Notices;
class NotchController;
class OnboardingController;
class PanelView;
class PanelWindow;
class PlanUsage;
class PreferenceFile;
class Scheduler;
class SecretStore;
class SessionLock;
class SettingsWindow;
class StatusItem;
class StatusItemController;
class ShutDown;
struct ShelfServices;
class Store;
class UpdateWindow;
class Worker;

/// Makes the parts of the program in their order and wires them. Everything lives until the
/// process ends. Main thread only.
class AppDelegate {
public:
    /// `environment` is what the user's own programs are started with.
    AppDelegate(DisplayServer& display, const QProcessEnvironment& environment,
                HoverTick::Rest rest = HoverTick::Rest::whenStill);
    ~AppDelegate();
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// Whether a process of this user had the data in use at its last start and still lives. Cheap
    /// enough for each start; before or after the application object.
    [[nodiscard]] static bool mayRunAlready();

    /// An error if another session of this user, or one on another machine, has the data in use.
    [[nodiscard]] Result<void> applicationDidFinishLaunching(DataLock::Claim claim);

    /// What another start of the program asked for; see Commands. After launching.
    [[nodiscard]] Answer answer(const QStringList& request);

    void openSettings();
    void showSetup();

    /// Brings to disk what is not there yet and waits for it. Safe to call again, and from atexit.
    void flush();

private:
    [[nodiscard]] std::function<Result<void>()> mayWrite(); ///< To be asked before each save.
    [[nodiscard]] LiveContext& liveContext();
    [[nodiscard]] PlanUsage& planUsage();
    void provideWindows();
    void wire();
    void wireNotices();
    void wireSettings();

    DisplayServer& display_;
    HoverTick::Rest rest_;
    std::unique_ptr<DataLock> dataLock_;
    std::unique_ptr<Scheduler> scheduler_;
    std::unique_ptr<Worker> worker_;
    std::unique_ptr<PreferenceFile> preferences_;
    std::unique_ptr<DetachedJobs> jobs_;
    std::unique_ptr<DetachedJobs> fileJobs_; ///< For files of the user's, on any mount.
    std::unique_ptr<DetachedJobs> copiedFiles_;
    std::unique_ptr<LoginItem> loginItem_;
    std::unique_ptr<SessionLock> loginSession_;
    std::unique_ptr<SessionLock> screenSaver_;
    std::unique_ptr<FileTransfer> transfers_;
    std::unique_ptr<AlertSound> sound_;
    std::unique_ptr<NightShift> nightShift_;
    std::unique_ptr<ShutDown> shutDown_;
    std::unique_ptr<SecretStore> secrets_;
    std::unique_ptr<HttpsClient> https_;
    std::unique_ptr<ChildProcess> children_;
    std::shared_ptr<ImageDecoder> decoder_; ///< Pictures may still be made when all else is gone.
    std::unique_ptr<StatusItem> tray_;

    std::unique_ptr<ShelfServices> shelf_;

    std::unique_ptr<Notices> notices_;
    std::unique_ptr<Store> store_;
    std::unique_ptr<AppSettings> settings_;
    std::unique_ptr<ClipboardManager> clipboard_;
    std::unique_ptr<PanelView> view_;
    std::unique_ptr<PanelWindow> window_;
    std::unique_ptr<NotchController> notch_;
    std::unique_ptr<SettingsWindow> settingsWindow_;
    std::unique_ptr<OnboardingController> onboarding_;
    std::unique_ptr<UpdateWindow> updateWindow_;
    std::unique_ptr<StatusItemController> statusItem_;
    std::unique_ptr<Commands> commands_;
    Handle compositor_;
    Handle motion_;
    Handle termination_;
};

} // namespace ravelo
