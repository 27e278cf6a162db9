#pragma once

#include "app/Platform.h"
#include "base/Handle.h"
#include "base/Result.h"
#include "platform/Answer.h"
#include "platform/system/DataLock.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace ravelo {

class AppSettings;
class CapturePause;
class ClaudeCode;
class ClipboardManager;
class Commands;
class DesktopNotices;
class Encryption;
class HistoryLength;
class HistorySettings;
class HotZone;
class KeyWhileLocked;
class NearbySend;
class NotchController;
class Notices;
class PanelPicture;
class PanelView;
class PanelWindow;
class Pasting;
class ReceivedWatcher;
class SelectedTexts;
class StatusItemController;
class Store;
class StoreNotices;
class Transfers;
class Windows;

/// Creates the parts of the program in order and connects them. Everything lives until the
/// process ends. Main thread only.
class AppDelegate {
public:
    explicit AppDelegate(Platform platform);
    ~AppDelegate();
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// Whether a process of this user may be using the data. Cheap; needs no application object.
    [[nodiscard]] static bool mayRunAlready();

    /// An error if another session of this user, or one on another machine, has the data in use.
    [[nodiscard]] Result<void> applicationDidFinishLaunching(DataLock::Claim claim);

    /// Answers a request of another instance; see Commands. After launching.
    [[nodiscard]] Answer answer(const QStringList& request, const QByteArray& activationToken);

    /// See Commands.
    [[nodiscard]] bool answerLater(const QStringList& request,
                                   const std::function<void(const Answer&)>& reply);

    /// Removes everything from the disk and quits; if something stays, reports that instead.
    void erase(const std::function<void(const Answer&)>& reply);

    void openSettings();
    void showSetup();

    /// Writes everything that is not on disk yet and waits for it. Can be called again, and
    /// while the process exits.
    void flush();

private:
    [[nodiscard]] std::vector<SessionLock*> locks();
    void makeStore();
    void makeSettings();
    void makeCapture();
    void makePanel();
    void makeWindows();
    void makeCommands();
    void erased(const Result<void>& done, const std::function<void(const Answer&)>& reply);
    void wire();
    void wireNotifications();
    void wireSettings();
    void wireShortcut();
    void wirePicture();
    void wireEncryption();

    Platform platform_;
    std::unique_ptr<ReceivedWatcher> received_;
    std::unique_ptr<NearbySend> nearby_;
    std::unique_ptr<Notices> notices_;
    std::unique_ptr<ClaudeCode> claude_;
    std::unique_ptr<DesktopNotices> notifications_;
    std::unique_ptr<Encryption> encryption_;
    std::unique_ptr<Store> store_;
    std::unique_ptr<Transfers> transfers_;
    std::unique_ptr<AppSettings> settings_;
    std::unique_ptr<CapturePause> pause_;
    std::unique_ptr<ClipboardManager> clipboard_;
    std::unique_ptr<SelectedTexts> selected_; ///< Null if selections cannot be seen.
    std::unique_ptr<PanelView> view_;
    std::unique_ptr<PanelWindow> window_;
    std::unique_ptr<HotZone> zone_;
    std::unique_ptr<NotchController> notch_;
    std::unique_ptr<Pasting> pasting_;
    std::unique_ptr<Windows> windows_;
    std::unique_ptr<StatusItemController> statusItem_;
    std::unique_ptr<Commands> commands_;
    std::unique_ptr<PanelPicture> picture_;
    std::unique_ptr<HistoryLength> historyLength_;
    std::unique_ptr<HistorySettings> history_;
    std::unique_ptr<StoreNotices> storeNotices_;
    std::unique_ptr<KeyWhileLocked> screenKey_;
    Handle compositor_;
    Handle motion_;
    Handle termination_;
    Handle arrivals_;
};

} // namespace ravelo
