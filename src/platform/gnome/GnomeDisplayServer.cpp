#include "platform/gnome/GnomeDisplayServer.h"

#include "platform/gnome/GnomeHotZone.h"
#include "platform/gnome/GnomePanelWindow.h"

#include <QWindow>

#include <utility>

namespace ravelo::gnome {

using namespace Qt::StringLiterals;

namespace {

/// What opens the panel at the top edge. Two rows: the pointer that is pushed against the edge is
/// on the first, and the clock below stays usable.
constexpr QSize strip(320, 2);

/// A window of ours that Mutter places; it has no shadow.
class PlainFrame final : public WindowFrame {
public:
    explicit PlainFrame(QWindow& window) { window.create(); }

    [[nodiscard]] bool isTranslucent() const override { return false; }

    [[nodiscard]] Handle onTranslucencyChange(std::function<void()> /*callback*/) override {
        return {};
    }

    void setRoom(QMargins /*room*/) override {}

    void moveTo(QPoint /*corner*/) override {}
};

} // namespace

Result<std::unique_ptr<GnomeDisplayServer>>
GnomeDisplayServer::create(const QString& path, QDBusConnection bus, QSizeF handle) {
    return Channel::listen(path, std::move(bus), hello(panelTitle, strip))
        .map([&](std::unique_ptr<Channel> channel) {
            return std::unique_ptr<GnomeDisplayServer>(
                new GnomeDisplayServer(std::move(channel), handle));
        });
}

QString GnomeDisplayServer::usualPath() {
    return qEnvironmentVariable("XDG_RUNTIME_DIR") + u'/' + socketPath;
}

GnomeDisplayServer::GnomeDisplayServer(std::unique_ptr<Channel> channel, QSizeF handle)
    : channel_(std::move(channel)),
      handle_(handle),
      transfers_(*channel_),
      pasteboard_(*channel_, transfers_),
      drags_(*channel_, transfers_),
      screens_(*channel_),
      look_(*channel_),
      lock_(*channel_) {}

void GnomeDisplayServer::typeWith(RemoteKeyboard& keyboard) {
    pasteKeys_ = std::make_unique<GnomePasteKeys>(*channel_, pasteboard_, keyboard);
}

std::unique_ptr<PanelWindow> GnomeDisplayServer::panelWindow(QWindow& window) {
    return std::make_unique<GnomePanelWindow>(
        window, GnomePanelWindow::Services{*channel_, drags_, pasteboard_}, handle_);
}

std::unique_ptr<WindowFrame> GnomeDisplayServer::windowFrame(QWindow& window) {
    return std::make_unique<PlainFrame>(window);
}

std::unique_ptr<HotZone> GnomeDisplayServer::hotZone(Scheduler& scheduler, PanelWindow& window) {
    return std::make_unique<GnomeHotZone>(GnomeHotZone::Services{
        scheduler, *channel_, screens_, drags_, static_cast<GnomePanelWindow&>(window)});
}

std::unique_ptr<MotionPreference> GnomeDisplayServer::motion() {
    return std::make_unique<GnomeMotionPreference>(look_);
}

std::unique_ptr<IconPreference> GnomeDisplayServer::icons() {
    return std::make_unique<GnomeIconPreference>(look_);
}

} // namespace ravelo::gnome
