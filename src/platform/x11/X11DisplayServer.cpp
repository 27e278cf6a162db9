#include "platform/x11/X11DisplayServer.h"

#include "platform/x11/keys/X11GlobalShortcut.h"
#include "platform/x11/settings/X11Preferences.h"
#include "platform/x11/settings/X11TrayArea.h"
#include "platform/x11/window/X11PanelWindow.h"
#include "platform/x11/window/X11WindowFrame.h"

#include <QGuiApplication>
#include <QScreen>

namespace ravelo::x11 {

namespace {

/// XWayland says so by an extension. Before version 23.1 it had none, but named its outputs itself;
/// later ones have the compositor's names. It counts only in a Wayland session: a whole X11 desktop
/// may run in it, too.
bool servesWayland(Connection& connection) {
    constexpr QByteArrayView name("XWAYLAND");
    const auto cookie = xcb_query_extension(connection.get(), uint16_t(name.size()), name.data());
    const Owned<xcb_query_extension_reply_t> reply(
        xcb_query_extension_reply(connection.get(), cookie, nullptr));
    const QScreen* screen = QGuiApplication::primaryScreen();
    const bool isNamed = screen != nullptr && screen->name().startsWith(QLatin1StringView(name));
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           ((reply && reply->present != 0) || isNamed);
}

} // namespace

Result<std::unique_ptr<X11DisplayServer>> X11DisplayServer::create() {
    auto connection = Connection::create();
    if (!connection) {
        return tl::unexpected(connection.error());
    }
    auto listener = Listener::create();
    if (!listener) {
        return tl::unexpected(listener.error());
    }
    return std::unique_ptr<X11DisplayServer>(
        new X11DisplayServer(std::move(*connection), std::move(*listener)));
}

X11DisplayServer::X11DisplayServer(std::unique_ptr<Connection> connection,
                                   std::unique_ptr<Listener> listener)
    : connection_(std::move(connection)),
      isXWayland_(servesWayland(*connection_)),
      events_(*connection_),
      focus_(*connection_, events_),
      pasteKeys_(*connection_, focus_),
      screens_(*connection_, events_),
      compositor_(*connection_, events_, ManagerSelection::compositor),
      settings_(*connection_, events_, ManagerSelection::settings, "_XSETTINGS_SETTINGS"),
      screenSaver_(*connection_, events_),
      barrier_(*connection_, [this](QPointF place) { return screens_.toNative(place); }),
      inputGrab_(*connection_, cover_),
      listener_(std::move(listener)),
      pasteboard_(*listener_),
      selectedText_(*listener_),
      drags_(*listener_),
      pointer_(*connection_, *listener_,
               isXWayland_ ? X11Pointer::Known::overX11Windows : X11Pointer::Known::everywhere,
               [this](QPoint place) { return screens_.toLogical(place); }),
      cover_(*listener_) {
    listener_->start();
}

std::unique_ptr<PanelWindow> X11DisplayServer::panelWindow(QWindow& window) {
    return std::make_unique<X11PanelWindow>(
        window, *connection_, events_, screens_, compositor_, cover_, drags_, focus_,
        isXWayland_ ? X11PanelWindow::Leaving::missed : X11PanelWindow::Leaving::reported);
}

std::unique_ptr<WindowFrame> X11DisplayServer::windowFrame(QWindow& window) {
    return std::make_unique<X11WindowFrame>(window, *connection_, compositor_);
}

std::unique_ptr<GlobalShortcut> X11DisplayServer::shortcut() {
    return std::make_unique<X11GlobalShortcut>(*connection_, events_);
}

std::unique_ptr<MotionPreference> X11DisplayServer::motion() {
    return std::make_unique<X11MotionPreference>(settings_);
}

std::unique_ptr<IconPreference> X11DisplayServer::icons() {
    return std::make_unique<X11IconPreference>(settings_);
}

std::unique_ptr<TrayArea> X11DisplayServer::tray() {
    return std::make_unique<X11TrayArea>(*connection_, events_);
}

} // namespace ravelo::x11
