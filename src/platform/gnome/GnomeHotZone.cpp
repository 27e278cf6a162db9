#include "platform/gnome/GnomeHotZone.h"

#include <utility>

namespace ravelo::gnome {

namespace {

constexpr Seconds again{0.1};

} // namespace

GnomeHotZone::GnomeHotZone(Services services)
    : services_(services),
      deliveries_(services.channel.onDelivery([this](Delivery& delivery) { delivered(delivery); })),
      ups_(services.channel.onUpChange([this] {
          edge_.reset();
          lookAgain();
      })),
      dragChanges_(services.drags.onChange([this] { lookAgain(); })),
      hover_(services.window.onUnderPointerChange([this] { lookAgain(); })),
      panelPresses_(services.window.onPress([this] { presses_.notify(Press::onPanel); })) {}

HotZone::Sight GnomeHotZone::look() {
    Sight sight;
    const auto at = lastEdge_ ? services_.screens.at(*lastEdge_) : std::nullopt;
    sight.screen = at ? at : services_.screens.main();
    const bool dragging = services_.drags.isUnderWay();
    const bool onPanel = services_.window.isUnderPointer();
    sight.inZone = edge_ || onPanel;
    sight.inDragZone = sight.inZone && dragging;
    sight.onPanel = onPanel;
    sight.nearPanel = sight.inZone;
    sight.buttonDown = sight.leftDown = dragging;
    return sight;
}

Handle GnomeHotZone::onSight(std::function<HotZone::Report(const Sight&)> callback) {
    callback_ = std::move(callback);
    lookAgain();
    return Handle([this] {
        callback_ = nullptr;
        next_.reset();
    });
}

Handle GnomeHotZone::onPress(std::function<void(Press)> callback) {
    return presses_.add(std::move(callback));
}

void GnomeHotZone::lookAgain() {
    next_ = services_.scheduler.after(Seconds(0), [this] { report(); });
}

void GnomeHotZone::delivered(const Delivery& delivery) {
    if (const auto* at = std::get_if<Edge>(&delivery.report)) {
        edge_ = at->screen;
        lastEdge_ = edge_ ? edge_ : lastEdge_;
        report(); // At once: it opens the panel.
    } else if (const auto* press = std::get_if<Pressed>(&delivery.report)) {
        presses_.notify(press->own ? Press::onOwnWindow : Press::elsewhere);
    }
}

void GnomeHotZone::report() {
    next_.reset();
    if (callback_ && callback_(look()) == HotZone::Report::again) {
        next_ = services_.scheduler.after(again, [this] { report(); });
    }
}

} // namespace ravelo::gnome
