#pragma once

#include "platform/DisplayServer.h"
#include "platform/HotZone.h"
#include "platform/IconPreference.h"
#include "platform/MotionPreference.h"
#include "platform/TrayArea.h"
#include "platform/gnome/Channel.h"
#include "platform/gnome/GnomeDragMonitor.h"
#include "platform/gnome/GnomePasteKeys.h"
#include "platform/gnome/GnomePasteboard.h"
#include "platform/gnome/GnomePreferences.h"
#include "platform/gnome/GnomeScreens.h"
#include "platform/gnome/ShellLock.h"
#include "platform/gnome/Transfers.h"

#include <QDBusConnection>
#include <QSizeF>

namespace ravelo::gnome {

/// GNOME Shell on Wayland, with our extension: Mutter reveals too little to its clients. Main
/// thread, while there is a QGuiApplication. The extension connects later, as soon as we own our
/// name on the bus; until then there are no screens, and whenever it is away the panel is not
/// shown.
class GnomeDisplayServer final : public DisplayServer {
public:
    /// `handle` is the size of the closed panel. `path` is that of the socket.
    [[nodiscard]] static Result<std::unique_ptr<GnomeDisplayServer>>
    create(const QString& path, QDBusConnection bus, QSizeF handle);

    /// In XDG_RUNTIME_DIR.
    [[nodiscard]] static QString usualPath();

    [[nodiscard]] Pasteboard& pasteboard() override { return pasteboard_; }

    [[nodiscard]] DragMonitor& drags() override { return drags_; }

    [[nodiscard]] Screens& screens() override { return screens_; }

    [[nodiscard]] EdgeBarrier* barrier() override { return nullptr; }

    [[nodiscard]] InputGrab& inputGrab() override { return inputGrab_; }

    [[nodiscard]] PasteKeys* pasteKeys() override { return pasteKeys_.get(); }

    /// From now on keys can be typed. To be called before `pasteKeys`; the keyboard must outlive
    /// this.
    void typeWith(RemoteKeyboard& keyboard);

    [[nodiscard]] std::vector<SessionLock*> locks() override { return {&lock_}; }

    [[nodiscard]] std::unique_ptr<PanelWindow> panelWindow(QWindow& window) override;
    [[nodiscard]] std::unique_ptr<WindowFrame> windowFrame(QWindow& window) override;

    /// For a window made by `panelWindow`.
    [[nodiscard]] std::unique_ptr<HotZone> hotZone(Scheduler& scheduler, PanelWindow& window);

    // They must be destroyed before it.
    [[nodiscard]] std::unique_ptr<MotionPreference> motion();
    [[nodiscard]] std::unique_ptr<IconPreference> icons();

    [[nodiscard]] Channel& channel() { return *channel_; }

private:
    /// The shell's own grabs let no pointer reach the strip.
    class NoInputGrab final : public InputGrab {
    public:
        [[nodiscard]] Answer ask() override {
            return [] {
                return false;
            };
        }

        [[nodiscard]] Handle onLikelyTaken(std::function<void()> /*callback*/) override {
            return {};
        }
    };

    GnomeDisplayServer(std::unique_ptr<Channel> channel, QSizeF handle);

    std::unique_ptr<Channel> channel_;
    QSizeF handle_;
    Transfers transfers_;
    GnomePasteboard pasteboard_;
    std::unique_ptr<GnomePasteKeys> pasteKeys_;
    GnomeDragMonitor drags_;
    GnomeScreens screens_;
    LookReports look_;
    ShellLock lock_;
    NoInputGrab inputGrab_;
};

} // namespace ravelo::gnome
