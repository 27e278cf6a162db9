#include "platform/wayland/window/BlurBehind.h"

namespace ravelo::wayland {

BlurBehind::BlurBehind(Globals& globals)
    : globals_(globals), subscription_(globals.onChange([this] { update(); })) {
    update();
}

void BlurBehind::update() {
    const bool offered = globals_.has(org_kde_kwin_blur_manager_interface.name);
    if (offered == isOffered()) {
        return;
    }
    blur_.reset();
    manager_.reset(
        offered ? globals_.bind<org_kde_kwin_blur_manager>(org_kde_kwin_blur_manager_interface, 1)
                : nullptr);
    listeners_.notify();
}

void BlurBehind::apply(wl_surface& surface, const QRegion& region) {
    if (!manager_) {
        return;
    }
    if (!blur_) {
        blur_.reset(org_kde_kwin_blur_manager_create(manager_.get(), &surface));
    }
    org_kde_kwin_blur_set_region(blur_.get(), makeRegion(region).get());
    org_kde_kwin_blur_commit(blur_.get());
}

} // namespace ravelo::wayland
