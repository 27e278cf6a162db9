#pragma once

#include "store/Records.h"

#include <QImage>
#include <QLineF>
#include <QList>
#include <QPainter>
#include <QRectF>

#include <optional>

/// Rules of the sketch, on values. Lengths are logical pixels.
namespace ravelo::drawing {

inline constexpr double penWidth = 2.5;
inline constexpr double eraserRadius = 9;
inline constexpr qsizetype maxStrokePoints = 20'000;
inline constexpr qsizetype maxPoints = 200'000; ///< Of all strokes; about 10 MB in the store file.

/// Where a further point has room: in the last stroke, in a new one, or nowhere, because it is
/// absurd (not finite, far outside) or the drawing is full.
enum class Room { lastStroke, newStroke, none };

/// Not even a new stroke has room.
[[nodiscard]] bool isFull(const QList<Stroke>& drawing);

[[nodiscard]] Room roomFor(QPointF point, const QList<Stroke>& drawing);

/// The drawing after the eraser moved along `way`; nothing if that changes nothing. A stroke that
/// is cut becomes several.
[[nodiscard]] std::optional<QList<Stroke>> erased(const QList<Stroke>& drawing, const QLineF& way);

/// What the strokes cover; empty if there are none.
[[nodiscard]] QRectF bounds(const QList<Stroke>& drawing);

/// Where a stroke looks different once its last point is added.
[[nodiscard]] QRectF endOf(const Stroke& stroke);

/// Where two drawings look different. Strokes of the same id are the same.
[[nodiscard]] QRectF difference(const QList<Stroke>& before, const QList<Stroke>& after);

/// Paints smooth lines, as far as they touch `region`. Skips points that are not finite or far
/// outside, and everything beyond `maxPoints`.
void paint(QPainter& painter, const QColor& color, const QList<Stroke>& drawing,
           const QRectF& region);

/// What is drawn, dark on white, at twice the size or less; null if nothing is.
[[nodiscard]] QImage picture(const QList<Stroke>& drawing);

[[nodiscard]] QByteArray png(const QImage& picture);

} // namespace ravelo::drawing
