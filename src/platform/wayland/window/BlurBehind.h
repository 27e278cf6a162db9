#pragma once

#include "platform/wayland/window/LayerRole.h"

#include <kwin-blur-client.h>

namespace ravelo::wayland {

RAVELO_OWNED(org_kde_kwin_blur_manager, org_kde_kwin_blur_manager_destroy)
RAVELO_OWNED(org_kde_kwin_blur, org_kde_kwin_blur_release)

/// Blurs what is behind a surface, if the compositor offers that (KWin's org_kde_kwin_blur). Main
/// thread.
class BlurBehind {
public:
    /// `globals` must outlive this.
    explicit BlurBehind(Globals& globals);

    [[nodiscard]] bool isOffered() const { return manager_ != nullptr; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return listeners_.add(std::move(callback));
    }

    /// With the next commit of `surface`, which must be the same until `forget`.
    void apply(wl_surface& surface, const QRegion& region);

    /// Before the surface is destroyed.
    void forget() { blur_.reset(); }

private:
    void update();

    Globals& globals_;
    Owned<org_kde_kwin_blur_manager> manager_;
    Owned<org_kde_kwin_blur> blur_;
    Listeners<> listeners_;
    Handle subscription_;
};

} // namespace ravelo::wayland
