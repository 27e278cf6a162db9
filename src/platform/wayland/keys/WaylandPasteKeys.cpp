#include "platform/wayland/keys/WaylandPasteKeys.h"

#include "platform/wayland/clipboard/WaylandPasteboard.h"
#include "platform/wayland/connection/QtConnection.h"
#include "platform/wayland/keys/VirtualKeyboard.h"
#include "platform/wayland/window/Surfaces.h"

#include <QGuiApplication>

namespace ravelo::wayland {

bool WaylandPasteKeys::isPossible() const {
    return VirtualKeyboard::isOffered(surfaces_.globals()) &&
           surfaces_.activeWindow().isReported() && surfaces_.seat().seat() != nullptr;
}

std::optional<PasteKeys::Target> WaylandPasteKeys::target() {
    const auto window = surfaces_.activeWindow().last();
    return window ? std::optional(Target{window->id, {window->appId}}) : std::nullopt;
}

PasteKeys::Readiness WaylandPasteKeys::readiness(const Target& target) {
    return {.modifiersUp = true, // As far as anybody can know.
            .ownsPasteboard = pasteboard_.isOwn(),
            .focused = QGuiApplication::focusWindow() == nullptr &&
                       surfaces_.activeWindow().isActive(target.id)};
}

void WaylandPasteKeys::press(const Target& target, PasteChord chord) {
    wl_display_roundtrip(qt::display()); // Or the active window may be an earlier one.
    if (!isPossible() || !readiness(target).isComplete()) {
        return;
    }
    using Key = VirtualKeyboard;
    const auto type = [this](Key::Key key, uint32_t modifiers) {
        VirtualKeyboard::type(surfaces_.globals(), *surfaces_.seat().seat(), key, modifiers);
    };
    switch (chord) {
    case PasteChord::controlV:
        type(Key::v, Key::control);
        break;
    case PasteChord::controlShiftV:
        type(Key::v, Key::control | Key::shift);
        break;
    case PasteChord::shiftInsert: // The selection is not ours.
        break;
    }
}

} // namespace ravelo::wayland
