#include "platform/wayland/WaylandDisplayServer.h"

#include "platform/wayland/window/WaylandHotZone.h"
#include "platform/wayland/window/WaylandPanelWindow.h"
#include "platform/wayland/window/WaylandWindowFrame.h"

namespace ravelo::wayland {

Result<std::unique_ptr<WaylandDisplayServer>> WaylandDisplayServer::create() {
    auto thread = ClipboardThread::create();
    if (!thread) {
        return tl::unexpected(thread.error());
    }
    auto surfaces = Surfaces::create(**thread);
    if (!surfaces) {
        return tl::unexpected(surfaces.error());
    }
    std::unique_ptr<WaylandDisplayServer> server(new WaylandDisplayServer(std::move(*thread)));
    server->surfaces_ = std::move(*surfaces);
    server->pasteboard_.setWindows(server->surfaces_->activeWindow());
    server->pasteKeys_ =
        std::make_unique<WaylandPasteKeys>(*server->surfaces_, server->pasteboard_);
    return server;
}

WaylandDisplayServer::WaylandDisplayServer(std::unique_ptr<ClipboardThread> thread)
    : thread_(std::move(thread)), pasteboard_(*thread_) {
    thread_->start();
}

std::unique_ptr<PanelWindow> WaylandDisplayServer::panelWindow(QWindow& window) {
    return std::make_unique<WaylandPanelWindow>(window, *surfaces_);
}

std::unique_ptr<WindowFrame> WaylandDisplayServer::windowFrame(QWindow& /*window*/) {
    return std::make_unique<WaylandWindowFrame>();
}

std::unique_ptr<HotZone> WaylandDisplayServer::hotZone(Scheduler& scheduler, PanelWindow& window) {
    return std::make_unique<WaylandHotZone>(scheduler, screens_,
                                            static_cast<WaylandPanelWindow&>(window), *surfaces_);
}

} // namespace ravelo::wayland
