#include "platform/x11/window/X11WindowFrame.h"

#include "platform/x11/connection/Properties.h"

#include <QGuiApplication>
#include <QWindow>

#include <xcb/shape.h>

#include <cmath>

namespace ravelo::x11 {

X11WindowFrame::X11WindowFrame(QWindow& window, Connection& connection,
                               ManagerSelection& compositor)
    : window_(window),
      compositor_(compositor),
      extents_(connection.atom("_GTK_FRAME_EXTENTS")),
      shadow_(connection.atom("_COMPTON_SHADOW")),
      qt_(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection()) {
    window_.create();
}

bool X11WindowFrame::isTranslucent() const {
    return compositor_.isOwned() && window_.format().hasAlpha();
}

Handle X11WindowFrame::onTranslucencyChange(std::function<void()> callback) {
    return compositor_.onChange(std::move(callback));
}

void X11WindowFrame::setRoom(QMargins room) {
    const auto id = static_cast<xcb_window_t>(window_.winId());
    const double scale = window_.devicePixelRatio();
    const auto native = [scale](int length) {
        return static_cast<uint32_t>(std::lround(length * scale));
    };
    if (room.isNull()) {
        xcb_shape_mask(qt_, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, id, 0, 0, XCB_PIXMAP_NONE);
        xcb_delete_property(qt_, id, extents_);
        xcb_delete_property(qt_, id, shadow_);
    } else {
        const QSize frame = window_.size().shrunkBy(room);
        const xcb_rectangle_t inside{static_cast<int16_t>(native(room.left())),
                                     static_cast<int16_t>(native(room.top())),
                                     static_cast<uint16_t>(native(frame.width())),
                                     static_cast<uint16_t>(native(frame.height()))};
        xcb_shape_rectangles(qt_, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_YX_BANDED,
                             id, 0, 0, 1, &inside);
        setCardinals(
            qt_, id, extents_,
            {native(room.left()), native(room.right()), native(room.top()), native(room.bottom())});
        setCardinals(qt_, id, shadow_, {0});
    }
    xcb_flush(qt_);
}

} // namespace ravelo::x11
