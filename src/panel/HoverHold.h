#pragma once

#include <utility>

namespace ravelo {

/// When the pointer in the hot zone does not open the panel: after it was dismissed under it, and
/// for a press that is neither a drag nor on the panel. That may be a window that is being moved,
/// which many window managers maximise at the top edge, or a selection of text. Both count until
/// the pointer has left the zone.
class HoverHold {
public:
    enum class Place { panel, elsewhere };
    enum class Press { none, drag, other };

    void dismissed() { awaitsLeave_ = true; }

    /// Where a button went down.
    void pressed(Place place) { place_ = place; }

    /// At every tick while the panel is closed. Returns whether the panel opens; `over`: the
    /// pointer is in the zone.
    [[nodiscard]] bool update(bool over, Press press) {
        if (press == Press::none) {
            place_ = Place::elsewhere;
        }
        const bool holds = over && press == Press::other && place_ == Place::elsewhere;
        const bool ended = std::exchange(holds_, holds) && press == Press::none;
        awaitsLeave_ = over && (awaitsLeave_ || ended);
        return over && !holds && !awaitsLeave_;
    }

private:
    Place place_ = Place::elsewhere;
    bool holds_ = false;
    bool awaitsLeave_ = false;
};

} // namespace ravelo
