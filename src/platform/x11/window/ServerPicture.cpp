#include "platform/x11/window/ServerPicture.h"

#include "base/Descriptor.h"

#include <xcb/shm.h>

#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace ravelo::x11 {

namespace {

constexpr uint8_t depth = 32;
constexpr int maxSlice = 64 * 1024; ///< Bytes a request; every server takes that much.

/// Sending a descriptor over anything else ends the connection.
bool isLocal(xcb_connection_t* connection) {
    sockaddr_storage address{};
    socklen_t size = sizeof address;
    return getsockname(xcb_get_file_descriptor(connection), reinterpret_cast<sockaddr*>(&address),
                       &size) == 0 &&
           address.ss_family == AF_UNIX;
}

/// Memory with a copy of the pixels; invalid if there is none.
Descriptor shared(const QImage& pixels) {
    Descriptor file(memfd_create("ravelo-picture", MFD_CLOEXEC));
    const auto size = static_cast<size_t>(pixels.sizeInBytes());
    if (!file || ftruncate(file.number(), pixels.sizeInBytes()) != 0) {
        return {};
    }
    void* const memory = mmap(nullptr, size, PROT_WRITE, MAP_SHARED, file.number(), 0);
    if (memory == MAP_FAILED) {
        return {};
    }
    std::memcpy(memory, pixels.constBits(), size);
    munmap(memory, size);
    return file;
}

/// A picture in slices fills the socket again and again, and waits each time. False if the server
/// cannot take it so.
bool putShared(xcb_connection_t* connection, xcb_drawable_t target, xcb_gcontext_t context,
               const QImage& pixels) {
    const auto* const extension = xcb_get_extension_data(connection, &xcb_shm_id);
    if (extension == nullptr || extension->present == 0 || !isLocal(connection)) {
        return false;
    }
    Descriptor file = shared(pixels);
    if (!file) {
        return false;
    }
    const xcb_shm_seg_t segment = xcb_generate_id(connection);
    const auto attached =
        xcb_shm_attach_fd_checked(connection, segment, file.release(), /*read_only=*/1);
    if (xcb_generic_error_t* const error = xcb_request_check(connection, attached)) {
        free(error);
        return false;
    }
    const auto width = static_cast<uint16_t>(pixels.width());
    const auto height = static_cast<uint16_t>(pixels.height());
    xcb_shm_put_image(connection, target, context, width, height, 0, 0, width, height, 0, 0, depth,
                      XCB_IMAGE_FORMAT_Z_PIXMAP, 0, segment, 0);
    xcb_shm_detach(connection, segment);
    return true;
}

void putSlices(xcb_connection_t* connection, xcb_drawable_t target, xcb_gcontext_t context,
               const QImage& pixels) {
    const int rows = std::max(maxSlice / static_cast<int>(pixels.bytesPerLine()), 1);
    for (int y = 0; y < pixels.height(); y += rows) {
        const int count = std::min(rows, pixels.height() - y);
        xcb_put_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, target, context,
                      static_cast<uint16_t>(pixels.width()), static_cast<uint16_t>(count), 0,
                      static_cast<int16_t>(y), 0, depth,
                      static_cast<uint32_t>(count * pixels.bytesPerLine()),
                      pixels.constScanLine(y));
    }
}

} // namespace

ServerPicture::ServerPicture(xcb_connection_t* connection, xcb_window_t window,
                             const QImage& picture)
    : connection_(connection), pixmap_(xcb_generate_id(connection)), size_(picture.size()) {
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    xcb_create_pixmap(connection_, depth, pixmap_, window, static_cast<uint16_t>(size_.width()),
                      static_cast<uint16_t>(size_.height()));
    const xcb_gcontext_t context = xcb_generate_id(connection_);
    xcb_create_gc(connection_, context, pixmap_, 0, nullptr);
    if (!putShared(connection_, pixmap_, context, pixels)) {
        putSlices(connection_, pixmap_, context, pixels);
    }
    xcb_free_gc(connection_, context);
}

ServerPicture::~ServerPicture() {
    xcb_free_pixmap(connection_, pixmap_);
}

} // namespace ravelo::x11
