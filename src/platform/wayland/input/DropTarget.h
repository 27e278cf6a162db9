#pragma once

#include "platform/wayland/input/WaylandDragOffer.h"

#include <map>
#include <memory>

namespace ravelo::wayland {

/// Drags over our surfaces, beside Qt, which accepts or refuses them: Qt would read what they offer
/// on the main thread. Some compositors report drags only to the first who listens, which is Qt.
/// Main thread.
class DropTarget {
public:
    /// Drags over surfaces of ours, Qt's included.
    enum class Change { entered, left };

    /// `seat` may be null; it and `thread` must outlive this.
    DropTarget(const Globals& globals, wl_seat* seat, ClipboardThread& thread);
    DropTarget(const DropTarget&) = delete;

    /// The drag over this surface now; null if there is none that we know of.
    [[nodiscard]] std::shared_ptr<DragOffer> over(const wl_surface* surface) const {
        return surface == under_ ? newest_ : nullptr;
    }

    [[nodiscard]] Handle onChange(std::function<void(Change, wl_surface*)> callback) {
        return listeners_.add(std::move(callback));
    }

private:
    void enter(wl_surface* surface, wl_data_offer* offer);
    void leave();

    static const wl_data_device_listener events;

    ClipboardThread& thread_;
    Owned<wl_data_device_manager> manager_;
    Owned<wl_data_device> device_;
    std::map<wl_data_offer*, std::shared_ptr<WaylandDragOffer>> announced_;

    /// Kept until the next drag: without it the compositor would end a transfer that goes on.
    std::shared_ptr<WaylandDragOffer> newest_;
    wl_surface* under_ = nullptr; ///< Only to compare with.
    Listeners<Change, wl_surface*> listeners_;
};

} // namespace ravelo::wayland
