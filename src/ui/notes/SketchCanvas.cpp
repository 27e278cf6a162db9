#include "ui/notes/SketchCanvas.h"

#include "ui/notes/Drawing.h"
#include "ui/paint/PaintedItem.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickWindow>
#include <QTouchEvent>

#include <algorithm>
#include <utility>

namespace ravelo {

namespace {

/// Logical pixels; whole device pixels at the usual scales.
constexpr int tileSide = 128;

} // namespace

/// A part of the picture.
class SketchCanvas::Tile : public PaintedItem {
public:
    explicit Tile(SketchCanvas& canvas) : PaintedItem(&canvas), canvas_(canvas) {}

protected:
    void paint(QPainter& painter) override {
        const double ratio = canvas_.picture_.devicePixelRatio();
        painter.drawImage(boundingRect(), canvas_.picture_,
                          QRectF(position() * ratio, size() * ratio));
    }

private:
    SketchCanvas& canvas_;
};

SketchCanvas::SketchCanvas(QQuickItem* parent) : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    setKeepMouseGrab(true); // Or the page would scroll.
    setKeepTouchGrab(true);
    setCursor(Qt::CrossCursor);
    connect(this, &SketchCanvas::colorChanged, this, &SketchCanvas::rebuild);
}

SketchCanvas::~SketchCanvas() {
    end();
}

void SketchCanvas::setSketch(Sketch* sketch) {
    sketch_ = sketch;
    connect(sketch, &Sketch::drawn, this, &SketchCanvas::redraw);
    Q_EMIT sketchChanged();
    rebuild();
}

void SketchCanvas::componentComplete() {
    QQuickItem::componentComplete();
    rebuild();
}

void SketchCanvas::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size()) {
        rebuild();
    }
}

void SketchCanvas::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged) {
        rebuild();
    }
}

double SketchCanvas::pixelRatio() const {
    return window() == nullptr ? 1 : window()->effectiveDevicePixelRatio();
}

double SketchCanvas::fittingScale() const {
    const QRectF bounds = drawing::bounds(sketch_->strokes());
    const double slack = drawing::penWidth; // Of a line along the edge.
    return std::min({1.0, width() / std::max(bounds.right() - slack, 1.0),
                     height() / std::max(bounds.bottom() - slack, 1.0)});
}

void SketchCanvas::rebuild() {
    if (!isComponentComplete() || sketch_ == nullptr || width() < 1 || height() < 1) {
        return;
    }
    end();
    scale_ = fittingScale();
    const double ratio = pixelRatio();
    picture_ =
        QImage((size() * ratio).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    picture_.setDevicePixelRatio(ratio);
    tiles_.clear();
    for (int y = 0; y < height(); y += tileSide) {
        for (int x = 0; x < width(); x += tileSide) {
            const auto& tile = tiles_.emplace_back(std::make_unique<Tile>(*this));
            tile->setX(x);
            tile->setY(y);
            tile->setSize({std::min<double>(tileSide, width() - x),
                           std::min<double>(tileSide, height() - y)});
        }
    }
    redraw(QRectF({}, size() / scale_));
}

/// In the sketch's coordinates.
void SketchCanvas::redraw(const QRectF& region) {
    if (picture_.isNull() || region.isEmpty()) {
        return;
    }
    if (!drawing_ && fittingScale() != scale_) {
        rebuild(); // Something larger came or went.
        return;
    }
    const double ratio = picture_.devicePixelRatio();
    // Whole pixels: what is drawn again has no seams.
    const QRect pixels = QRectF(region.topLeft() * scale_ * ratio, region.size() * scale_ * ratio)
                             .toAlignedRect()
                             .adjusted(-1, -1, 1, 1);
    const QRectF place(QPointF(pixels.topLeft()) / ratio, QSizeF(pixels.size()) / ratio);
    QPainter painter(&picture_);
    painter.setClipRect(place);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(place, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.scale(scale_, scale_);
    drawing::paint(painter, color_, sketch_->strokes(),
                   {place.topLeft() / scale_, place.size() / scale_});
    painter.end();
    for (const auto& tile : tiles_) {
        if (QRectF(tile->position(), tile->size()).intersects(place)) {
            tile->update();
        }
    }
}

void SketchCanvas::begin(QPointF place, Finger finger) {
    drawing_ = true;
    outside_ = false;
    finger_ = finger;
    // Every event counts, not one a frame: of the mouse by this, of fingers by the filter.
    compressed_ = QCoreApplication::testAttribute(Qt::AA_CompressHighFrequencyEvents);
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    window()->installEventFilter(this);
    Q_EMIT pressed();
    sketch_->press(place / scale_);
}

/// Nothing is drawn outside.
void SketchCanvas::follow(QPointF place) {
    const QPointF inside(std::clamp(place.x(), 0.0, width()), std::clamp(place.y(), 0.0, height()));
    const bool wasOutside = std::exchange(outside_, inside != place);
    if (wasOutside && !outside_) {
        sketch_->jump(inside / scale_);
    } else if (!wasOutside) {
        sketch_->move(inside / scale_);
    }
}

void SketchCanvas::end() {
    if (drawing_) {
        drawing_ = false;
        finger_.reset();
        QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, compressed_);
        if (window() != nullptr) {
            window()->removeEventFilter(this);
        }
        sketch_->release();
    }
}

/// Qt Quick delivers only the last movement of a finger before each frame.
bool SketchCanvas::eventFilter(QObject* window, QEvent* event) {
    if (event->type() == QEvent::TouchUpdate && finger_) {
        for (const QEventPoint& point : static_cast<QTouchEvent*>(event)->points()) {
            if (point.id() == *finger_ && point.state() == QEventPoint::Updated) {
                follow(mapFromScene(point.position()));
            }
        }
    }
    return QQuickItem::eventFilter(window, event);
}

void SketchCanvas::mousePressEvent(QMouseEvent* event) {
    begin(event->position(), {});
}

void SketchCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (drawing_ && !finger_) {
        follow(event->position());
    }
}

void SketchCanvas::mouseReleaseEvent(QMouseEvent* /*event*/) {
    end();
}

void SketchCanvas::mouseUngrabEvent() {
    end();
}

void SketchCanvas::touchEvent(QTouchEvent* event) {
    for (const QEventPoint& point : event->points()) {
        if (point.state() == QEventPoint::Pressed && !drawing_) {
            begin(point.position(), point.id());
        } else if (point.state() == QEventPoint::Released && finger_ == point.id()) {
            follow(point.position());
            end();
        }
    }
    event->accept();
}

void SketchCanvas::touchUngrabEvent() {
    end();
}

} // namespace ravelo
