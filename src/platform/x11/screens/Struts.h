#pragma once

#include <QRect>
#include <QSize>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace ravelo::x11 {

/// What one window reserves along the edges of the root window (EWMH `_NET_WM_STRUT_PARTIAL`), in
/// native pixels: how deep it reaches in, and from where to where along the edge (inclusive).
struct Strut {
    struct Edge {
        int depth = 0;
        int first = 0;
        int last = 0;
    };

    Edge left;
    Edge right;
    Edge top;
    Edge bottom;
};

/// Reads the cardinals of `_NET_WM_STRUT_PARTIAL` (12) or `_NET_WM_STRUT` (4: whole edges).
[[nodiscard]] std::optional<Strut> parseStrut(std::span<const uint32_t> cardinals);

/// `monitor` less what the struts reserve on it, all in native pixels of a root of size `root`.
/// A strut is measured from the edge of the root, even if that is on another monitor: it
/// counts for the monitor that contains its inner edge.
[[nodiscard]] QRect withoutStruts(QRect monitor, QSize root, const std::vector<Strut>& struts);

} // namespace ravelo::x11
