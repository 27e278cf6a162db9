#include "platform/x11/window/ServerPicture.h"

#include <algorithm>

namespace ravelo::x11 {

namespace {

constexpr uint8_t depth = 32;
constexpr int maxSlice = 64 * 1024; ///< Bytes a request; every server takes that much.

} // namespace

ServerPicture::ServerPicture(xcb_connection_t* connection, xcb_window_t window,
                             const QImage& picture)
    : connection_(connection), pixmap_(xcb_generate_id(connection)), size_(picture.size()) {
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const auto width = static_cast<uint16_t>(size_.width());
    xcb_create_pixmap(connection_, depth, pixmap_, window, width,
                      static_cast<uint16_t>(size_.height()));
    const xcb_gcontext_t context = xcb_generate_id(connection_);
    xcb_create_gc(connection_, context, pixmap_, 0, nullptr);
    const int rows = std::max(maxSlice / static_cast<int>(pixels.bytesPerLine()), 1);
    for (int y = 0; y < size_.height(); y += rows) {
        const int count = std::min(rows, size_.height() - y);
        xcb_put_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap_, context, width,
                      static_cast<uint16_t>(count), 0, static_cast<int16_t>(y), 0, depth,
                      static_cast<uint32_t>(count * pixels.bytesPerLine()),
                      pixels.constScanLine(y));
    }
    xcb_free_gc(connection_, context);
}

ServerPicture::~ServerPicture() {
    xcb_free_pixmap(connection_, pixmap_);
}

} // namespace ravelo::x11
