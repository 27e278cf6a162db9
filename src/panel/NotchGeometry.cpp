#include "panel/NotchGeometry.h"

#include <algorithm>
#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr double plainBarWidth = 520;
constexpr double notchBarWidth = 640;
constexpr double assumedNotch = 200;
constexpr double minBarHeight = 24;

double measuredNotch(const Screen& screen) {
    if (!screen.leftOfNotch || !screen.rightOfNotch) {
        return 0;
    }
    return std::max(0.0, screen.rightOfNotch->left() - screen.leftOfNotch->right());
}

/// In whole pixels: at a fractional scale the screen itself has none.
QSizeF largestSize(const Screen& screen) {
    return {std::floor(screen.frame.width() - screenMargin),
            std::floor(screen.frame.height() - screenMargin)};
}

// QRectF::contains takes the far edges in as well: two screens side by side would share a column.
bool contains(const QRectF& frame, QPointF point) {
    return point.x() >= frame.left() && point.x() < frame.right() && point.y() >= frame.top() &&
           point.y() < frame.bottom();
}

} // namespace

BarGeometry barGeometry(const Screen& screen, const QString& displayKind) {
    const double height = std::max(screen.visibleFrame.top() - screen.frame.top(), minBarHeight);
    const double measured = measuredNotch(screen);
    const bool plain = displayKind == "none"_L1 || (displayKind != "notch"_L1 && measured <= 0);
    const double widest = largestSize(screen).width();
    if (plain) {
        return {std::min(plainBarWidth, widest), height, 0};
    }
    const double notch = measured > 0 ? measured : assumedNotch;
    return {std::min(std::max(notchBarWidth, 3 * notch), widest), height, notch};
}

QSizeF expandedSize(double panelWidth, ShelfContent shelf, const Screen& screen) {
    const double height = shelf == ShelfContent::files ? 700.0 : 560.0;
    return QSizeF(panelWidth, height).boundedTo(largestSize(screen));
}

QRectF hangingFrame(const Screen& screen, QSizeF size) {
    const QPointF topLeft(screen.frame.center().x() - size.width() / 2, screen.frame.top());
    return {topLeft, size};
}

std::optional<Screen> screenFor(std::optional<QPointF> pointer, const std::vector<Screen>& screens,
                                const std::optional<Screen>& main) {
    if (pointer) {
        const auto under = std::ranges::find_if(
            screens, [&](const Screen& screen) { return contains(screen.frame, *pointer); });
        if (under != screens.end()) {
            return *under;
        }
    }
    if (main) {
        return main;
    }
    return screens.empty() ? std::nullopt : std::optional(screens.front());
}

bool isNearTopCentre(QPointF point, const Screen& screen, double height, double halfWidth) {
    return point.y() <= screen.frame.top() + height &&
           std::abs(point.x() - screen.frame.center().x()) <= halfWidth;
}

} // namespace ravelo
