#include "platform/wayland/window/InvisibleSurface.h"

#include "base/Descriptor.h"
#include "platform/wayland/connection/QtConnection.h"

#include <sys/mman.h>
#include <unistd.h>

namespace ravelo::wayland {

std::unique_ptr<InvisiblePixel> InvisiblePixel::create(const Globals& globals) {
    constexpr int32_t pixelBytes = 4;
    auto made = std::make_unique<InvisiblePixel>();
    made->viewporter_.reset(globals.bind<wp_viewporter>(wp_viewporter_interface, 1));
    const Owned<wl_shm> memory(globals.bind<wl_shm>(wl_shm_interface, 1));
    const Descriptor file(memfd_create("ravelo-pixel", MFD_CLOEXEC));
    if (!made->viewporter_ || !memory || !file || ftruncate(file.number(), pixelBytes) != 0) {
        return nullptr;
    }
    const Owned<wl_shm_pool> pool(wl_shm_create_pool(memory.get(), file.number(), pixelBytes));
    made->buffer_.reset(
        wl_shm_pool_create_buffer(pool.get(), 0, 1, 1, pixelBytes, WL_SHM_FORMAT_ARGB8888));
    return made;
}

InvisibleSurface::InvisibleSurface(const InvisiblePixel& pixel, zwlr_layer_shell_v1& shell,
                                   wl_output* output, QSize size)
    : pixel_(pixel),
      surface_(wl_compositor_create_surface(qt::compositor())),
      viewport_(wp_viewporter_get_viewport(pixel.viewporter(), surface_.get())),
      role_(std::make_unique<LayerRole>(shell, *surface_, output, size, Keyboard::none,
                                        LayerRole::Events{[this](QSize given) { configure(given); },
                                                          [this] {
                                                              wl_surface_attach(surface_.get(),
                                                                                nullptr, 0, 0);
                                                          }})) {
    wl_surface_commit(surface_.get());
    wl_display_flush(qt::display());
}

void InvisibleSurface::setHole(const QRegion& hole, QSize box) {
    hole_ = hole;
    box_ = box;
    draw();
}

void InvisibleSurface::configure(QSize size) {
    size_ = size;
    wp_viewport_set_destination(viewport_.get(), size.width(), size.height());
    wl_surface_attach(surface_.get(), pixel_.buffer(), 0, 0);
    wl_surface_damage(surface_.get(), 0, 0, size.width(), size.height());
    draw();
}

void InvisibleSurface::draw() {
    if (size_.isEmpty()) {
        return;
    }
    const QRegion hole = hole_.translated((size_.width() - box_.width()) / 2, 0);
    setInputRegion(*surface_, QRegion(QRect({}, size_)) - hole);
    wl_surface_commit(surface_.get());
    wl_display_flush(qt::display());
}

} // namespace ravelo::wayland
