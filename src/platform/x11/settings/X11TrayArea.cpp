#include "platform/x11/settings/X11TrayArea.h"

namespace ravelo::x11 {

namespace {

/// Four colours of three values of 16 bits each: of texts first, then of errors, warnings, success.
std::optional<QColor> textColor(const std::vector<uint32_t>& colors) {
    if (colors.size() != 12) {
        return std::nullopt;
    }
    const auto part = [&](size_t index) {
        return static_cast<int>((colors[index] & 0xffffU) >> 8U);
    };
    return QColor(part(0), part(1), part(2));
}

} // namespace

X11TrayArea::X11TrayArea(Connection& connection, Events& events)
    : colors_(connection, events, ManagerSelection::tray, "_NET_SYSTEM_TRAY_COLORS"),
      foreground_(textColor(colors_.cardinals())),
      changes_(colors_.onChange([this] { look(); })) {}

/// Reports another tray even if it looks the same: icons have to move there.
void X11TrayArea::look() {
    foreground_ = textColor(colors_.cardinals());
    listeners_.notify();
}

} // namespace ravelo::x11
