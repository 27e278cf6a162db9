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
      drawn_(window.onDrawn([this] {
          makeStrips();
          lookAgain();
      })),
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
          strips_.clear();
          makeStrips();
      })) {}

HotZone::Sight WaylandHotZone::look() {
    const auto screens = screens_.all();
    Sight sight;
    sight.screen = find(screens, hovered_.isEmpty() ? window_.screen() : hovered_);
    if (!sight.screen) {
        sight.screen = screens_.main();
    }
    const bool over = window_.isUnderPointer();
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

void WaylandHotZone::lookAgain() {
    next_ = scheduler_.after(Seconds(0), [this] { report(); });
}

void WaylandHotZone::report() {
    next_.reset();
    if (callback_ && callback_(look()) == Report::again) {
        next_ = scheduler_.after(againTime, [this] { report(); });
    }
}

/// On every screen but the panel's. There it stays until the panel is drawn: some compositors
/// (sway 1.10) look for what is under a resting pointer when a surface goes, but not when one
/// comes.
void WaylandHotZone::makeStrips() {
    const auto screens = screens_.all();
    std::erase_if(strips_, [&](const auto& strip) {
        const bool mayGo = window_.isDrawn() || !surfaces_.lookWhenSurfacesGo();
        return (strip.first == window_.screen() && mayGo) || !find(screens, strip.first);
    });
    for (const Screen& screen : screens) {
        if (screen.id != window_.screen() && !strips_.contains(screen.id)) {
            if (auto strip = surfaces_.makeInvisible(WaylandScreens::find(screen.id), stripSize)) {
                strips_.emplace(screen.id, std::move(strip));
            }
        }
    }
    if (!strips_.contains(hovered_)) {
        hovered_.clear();
    }
}

void WaylandHotZone::hover(InputSeat::Change change, const wl_surface* surface) {
    const QString screen = screenOf(surface);
    if (screen.isEmpty() || change == InputSeat::Change::pressed) {
        return;
    }
    hovered_ = change == InputSeat::Change::entered ? screen : QString();
    report();
}

QString WaylandHotZone::screenOf(const wl_surface* strip) const {
    const auto found = std::ranges::find_if(
        strips_, [strip](const auto& entry) { return entry.second->surface() == strip; });
    return found == strips_.end() ? QString() : found->first;
}

} // namespace ravelo::wayland
