#pragma once

#include "base/Handle.h"

#include <QString>

#include <functional>
#include <memory>

class QQuickView;

namespace ravelo {

class AppSettings;
class ClipboardManager;
class NotchController;
class OnboardingController;
struct Platform;
class SettingsWindow;
class Store;
class Transfers;
class UpdateWindow;

/// The windows beside the panel: settings, setup and updates. Main thread.
class Windows {
public:
    struct Services {
        Platform& platform; ///< This takes over its `packages`.
        QQuickView& panel;
        Store& store;
        AppSettings& settings;
        Transfers& transfers;
        ClipboardManager& clipboard;
        NotchController& notch;
        bool canPaste;
        bool knowsSelection;
        std::function<void()> quit;
        std::function<void()> erase;
    };

    explicit Windows(Services services);
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    /// These close the panel, which would cover them.
    void showSetup();
    void showUpdates();

private:
    void checkAccount(Platform& platform, const QString& folder,
                      const std::function<void(const QString& problem)>& done);

    NotchController& notch_;
    Handle accountCheck_;
    std::unique_ptr<SettingsWindow> settings_;
    std::unique_ptr<OnboardingController> setup_;
    std::unique_ptr<UpdateWindow> updates_;
};

} // namespace ravelo
