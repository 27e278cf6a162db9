#pragma once

#include <QImage>

#include <xcb/xcb.h>

namespace ravelo::x11 {

/// A picture that the X server keeps.
class ServerPicture {
public:
    /// Of 32 bits a pixel, as `window` has; `connection` outlives it.
    ServerPicture(xcb_connection_t* connection, xcb_window_t window, const QImage& picture);
    ~ServerPicture();
    ServerPicture(const ServerPicture&) = delete;
    ServerPicture& operator=(const ServerPicture&) = delete;

    [[nodiscard]] xcb_pixmap_t pixmap() const { return pixmap_; }

    /// Device pixels.
    [[nodiscard]] QSize size() const { return size_; }

private:
    xcb_connection_t* connection_;
    xcb_pixmap_t pixmap_;
    QSize size_;
};

} // namespace ravelo::x11
