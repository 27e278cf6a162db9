#include "platform/wayland/window/WaylandHotZone.h"

#include "platform/wayland/screens/WaylandScreens.h"
#include "platform/wayland/window/Strip.h"

#include <algorithm>
#include <utility>

namespace ravelo::wayland {

namespace {

constexpr Seconds againTime{0.1};

std::optional<Screen> find(const std::vector<Screen>& screens, const QString& id) {
    const auto found = std::ranges::find(screens, id, &Screen::id);
    return found == screens.end() ? std::nullopt : std::optional(*found);
}

} // namespace

WaylandHotZone::WaylandHotZone(Scheduler& scheduler, WaylandScreens& screens,
                               WaylandPanelWindow& window, Surfaces& surfaces)
    : scheduler_(scheduler),
      screens_(screens),
      window_(window),
      surfaces_(surfaces),
      underPointer_(window.onUnderPointerChange([this] { report(); })),
      pointer_(surfaces.seat().onChange(
          [this](InputSeat::Change change, wl_surface* surface) { hover(change, surface); })),
      drags_(surfaces.drops().onChange([this](DropTarget::Change change, wl_surface* surface) {
          const QString screen = screenOf(surface);
          if (change == DropTarget::Change::entered && !screen.isEmpty()) {
              window_.moveTo(screen); // The drag goes on there, with its contents.
              makeStrips();
          }
      })),
      screenChanges_(screens.onChange([this] {
          strips_.clear(); // Nobody reports that the pointer leaves one of these.
          makeStrips();
          lookAgain();
      })) {}

HotZone::Sight WaylandHotZone::look() {
    const auto screens = screens_.all();
    Sight sight;
    sight.screen = find(screens, hovered_.isEmpty() ? window_.screen() : hovered_);
    if (!sight.screen) {
        sight.screen = screens_.main();
    }
    // A strip on the panel's screen is below the panel.
    const bool over =
        window_.isUnderPointer() || (!hovered_.isEmpty() && hovered_ == window_.screen());
    sight.inZone = over || !hovered_.isEmpty();
    sight.inDragZone = sight.onPanel = over;
    // Who types into the panel need not hover over it.
    sight.nearPanel = over || window_.wantsKeyboard();
    return sight;
}

Handle WaylandHotZone::onSight(std::function<Report(const Sight&)> callback) {
    callback_ = std::move(callback);
    lookAgain();
    return Handle([this] {
        callback_ = nullptr;
        next_.reset();
    });
}

void WaylandHotZone::setPanel(const QRectF& /*frame*/) {
    makeStrips();
    lookAgain();
}

/// Qt crashes if a drag that it began moves over a surface that it does not know.
void WaylandHotZone::setDraggingOut(bool dragging) {
    draggingOut_ = dragging;
    makeStrips();
    window_.setDraggingOut(dragging);
}

void WaylandHotZone::lookAgain() {
    next_ = scheduler_.after(Seconds(0), [this] { report(); });
}

void WaylandHotZone::report() {
    next_.reset();
    if (callback_ && callback_(look()) == Report::again) {
        next_ = scheduler_.after(againTime, [this] { report(); });
    }
}

/// On every screen but the panel's. There the strip that the pointer is in stays, below the panel:
/// sway 1.10 does not report the panel under a pointer that rests, nor that it leaves then.
void WaylandHotZone::makeStrips() {
    const auto screens = screens_.all();
    std::erase_if(strips_, [&](const auto& strip) {
        return draggingOut_ || (strip.first == window_.screen() && strip.first != hovered_) ||
               !find(screens, strip.first);
    });
    if (!hovered_.isEmpty() && !strips_.contains(hovered_)) {
        if (hovered_ == window_.screen()) {
            window_.comesUnderPointer();
        }
        hovered_.clear();
    }
    for (const Screen& screen : screens) {
        if (!draggingOut_ && screen.id != window_.screen() && !strips_.contains(screen.id)) {
            if (auto strip = surfaces_.makeInvisible(WaylandScreens::find(screen.id), stripSize)) {
                strips_.emplace(screen.id, std::move(strip));
            }
        }
    }
}

void WaylandHotZone::hover(InputSeat::Change change, const wl_surface* surface) {
    const QString screen = screenOf(surface);
    if (screen.isEmpty() || change == InputSeat::Change::pressed) {
        return;
    }
    if (change == InputSeat::Change::entered) {
        hovered_ = screen;
        report();
    } else {
        hovered_.clear();
        makeStrips();
        lookAgain(); // Not before it can have come to the panel.
    }
}

QString WaylandHotZone::screenOf(const wl_surface* strip) const {
    const auto found = std::ranges::find_if(
        strips_, [strip](const auto& entry) { return entry.second->surface() == strip; });
    return found == strips_.end() ? QString() : found->first;
}

} // namespace ravelo::wayland
