#include "ui/notes/Drawing.h"

#include <QBuffer>
#include <QHash>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ravelo::drawing {

namespace {

constexpr double farthest = 100'000; ///< Beyond any screen; the painter is slow or wrong there.

bool isNear(QPointF point) { // False for NaN.
    return std::abs(point.x()) <= farthest && std::abs(point.y()) <= farthest;
}

qsizetype pointCount(const QList<Stroke>& drawing) {
    qsizetype count = 0;
    for (const Stroke& stroke : drawing) {
        count += stroke.points.size();
    }
    return count;
}

QRectF around(QPointF a, QPointF b, double margin) {
    return QRectF(a, b).normalized().adjusted(-margin, -margin, margin, margin);
}

double distance(QPointF point, const QLineF& way) {
    const QPointF along = way.p2() - way.p1();
    const double square = QPointF::dotProduct(along, along);
    const double part = square > 0 ? QPointF::dotProduct(point - way.p1(), along) / square : 0;
    return QLineF(point, way.pointAt(std::clamp(part, 0.0, 1.0))).length();
}

/// What the eraser leaves of a stroke: several pieces, none, or nothing if it does not touch it.
class Cutting {
public:
    Cutting(const Stroke& stroke, const QLineF& way)
        : way_(way), reach_(around(way.p1(), way.p2(), eraserRadius)) {
        for (qsizetype i = 0; i < stroke.points.size(); ++i) {
            if (i > 0) {
                between(stroke.points[i - 1], stroke.points[i]);
            }
            add(stroke.points[i]);
        }
        end();
    }

    [[nodiscard]] bool touched() const { return touched_; }

    [[nodiscard]] QList<Stroke> pieces() const { return pieces_; }

private:
    /// Cuts where the eraser passes, not only at points: they can be far apart.
    void between(QPointF from, QPointF to) {
        if (!isNear(from) || !isNear(to) || !around(from, to, 0.01).intersects(reach_)) {
            return;
        }
        const QLineF line(from, to);
        const int steps = static_cast<int>(std::min(line.length(), 4096.0));
        bool cut = false;
        for (int i = 1; i < steps; ++i) {
            const QPointF point = line.pointAt(static_cast<double>(i) / steps);
            const bool erases = distance(point, way_) < eraserRadius;
            if (erases != cut) { // Only the edges of a cut become points.
                erases ? add(line.pointAt(static_cast<double>(i - 1) / steps)) : end();
                add(point);
            }
            cut = erases;
        }
    }

    void add(QPointF point) {
        if (reach_.contains(point) && distance(point, way_) < eraserRadius) {
            touched_ = true;
            end();
        } else if (piece_.isEmpty() || piece_.last() != point) {
            piece_.append(point);
        }
    }

    void end() {
        if (!piece_.isEmpty()) {
            pieces_.append({QUuid::createUuid(), std::exchange(piece_, {})});
        }
    }

    QLineF way_;
    QRectF reach_;
    QList<QPointF> piece_;
    QList<Stroke> pieces_;
    bool touched_ = false;
};

/// The lines of one stroke: curves between the middles of its points.
class Line {
public:
    explicit Line(const QList<QPointF>& points) : points_(points) {}

    [[nodiscard]] QPointF begin(qsizetype i) const {
        return i == 0 ? points_[0] : (points_[i - 1] + points_[i]) / 2;
    }

    [[nodiscard]] QPointF end(qsizetype i) const {
        return i + 1 == points_.size() ? points_[i] : (points_[i] + points_[i + 1]) / 2;
    }

    [[nodiscard]] QRectF box(qsizetype i) const {
        return around(begin(i), points_[i], penWidth).united(around(points_[i], end(i), penWidth));
    }

    [[nodiscard]] bool isDrawable(qsizetype i) const {
        return isNear(begin(i)) && isNear(points_[i]) && isNear(end(i));
    }

    void addTo(QPainterPath& path, qsizetype i) const {
        if (points_.size() == 1) {
            path.lineTo(points_[0] + QPointF(0.01, 0)); // Otherwise there is no dot.
        } else {
            path.quadTo(points_[i], end(i));
        }
    }

private:
    const QList<QPointF>& points_;
};

} // namespace

bool isFull(const QList<Stroke>& drawing) {
    return pointCount(drawing) >= maxPoints;
}

Room roomFor(QPointF point, const QList<Stroke>& drawing) {
    if (!isNear(point) || isFull(drawing)) {
        return Room::none;
    }
    const bool needsNew = drawing.isEmpty() || drawing.last().points.size() >= maxStrokePoints;
    return needsNew ? Room::newStroke : Room::lastStroke;
}

std::optional<QList<Stroke>> erased(const QList<Stroke>& drawing, const QLineF& way) {
    if (!isNear(way.p1()) || !isNear(way.p2())) {
        return std::nullopt;
    }
    QList<Stroke> left;
    bool changed = false;
    for (const Stroke& stroke : drawing) {
        const Cutting cutting(stroke, way);
        changed = changed || cutting.touched();
        left += cutting.touched() ? cutting.pieces() : QList<Stroke>{stroke};
    }
    return changed ? std::optional(left) : std::nullopt;
}

QRectF bounds(const QList<Stroke>& drawing) {
    QRectF all;
    for (const Stroke& stroke : drawing) {
        for (const QPointF point : stroke.points) {
            if (isNear(point)) {
                all = all.united(around(point, point, penWidth / 2));
            }
        }
    }
    return all;
}

QRectF endOf(const Stroke& stroke) {
    const qsizetype count = stroke.points.size();
    QRectF all;
    for (qsizetype i = std::max<qsizetype>(0, count - 4); i < count; ++i) {
        all = all.united(around(stroke.points[i], stroke.points[i], penWidth));
    }
    return all;
}

QRectF difference(const QList<Stroke>& before, const QList<Stroke>& after) {
    QHash<QUuid, const Stroke*> only;
    for (const Stroke& stroke : before) {
        only.insert(stroke.id, &stroke);
    }
    for (const Stroke& stroke : after) {
        if (!only.remove(stroke.id)) {
            only.insert(stroke.id, &stroke);
        }
    }
    QRectF all;
    for (const Stroke* stroke : only) {
        all = all.united(bounds({*stroke}));
    }
    return all.isEmpty() ? all : all.adjusted(-penWidth, -penWidth, penWidth, penWidth);
}

void paint(QPainter& painter, const QColor& color, const QList<Stroke>& drawing,
           const QRectF& region) {
    constexpr int maxPieces = 400; // Longer paths take disproportionately long.
    painter.setRenderHint(QPainter::Antialiasing);
    const QPen pen(color, penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    qsizetype left = maxPoints;
    for (const Stroke& stroke : drawing) {
        const Line line(stroke.points);
        QPainterPath path;
        int pieces = 0;
        bool goesOn = false;
        for (qsizetype i = 0; i < stroke.points.size() && left > 0; ++i, --left) {
            const bool seen = line.isDrawable(i) && line.box(i).intersects(region);
            if (seen && !goesOn) {
                path.moveTo(line.begin(i));
            }
            if (seen) {
                line.addTo(path, i);
            }
            goesOn = seen;
            if (++pieces == maxPieces) {
                painter.strokePath(std::exchange(path, {}), pen);
                pieces = 0;
                goesOn = false;
            }
        }
        painter.strokePath(path, pen);
    }
}

QImage picture(const QList<Stroke>& drawing) {
    constexpr double margin = 12;
    constexpr double maxPixels = 4e6; // Encoded on the main thread.
    constexpr double maxSide = 16'000;
    if (bounds(drawing).isEmpty()) {
        return {};
    }
    const QRectF area = bounds(drawing).adjusted(-margin, -margin, margin, margin);
    const double scale = std::min({2.0, std::sqrt(maxPixels / (area.width() * area.height())),
                                   maxSide / std::max(area.width(), area.height())});
    QImage image((area.size() * scale).toSize().expandedTo({1, 1}), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(-area.topLeft());
    paint(painter, QColor(0x13, 0x13, 0x16), drawing, area);
    painter.end();
    return image;
}

QByteArray png(const QImage& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

} // namespace ravelo::drawing
