#include "ui/FadingEdge.h"

#include "ui/PaintNode.h"

#include <algorithm>
#include <memory>

namespace ravelo {

namespace {

/// What lay behind the strip when it was last painted, in device pixels.
using Backdrop = std::shared_ptr<QImage>;

QRect devicePixels(const QPainter& painter, const QRectF& rect) {
    return painter.deviceTransform().mapRect(rect).toAlignedRect();
}

class KeepNode final : public PaintNode {
public:
    KeepNode(QQuickWindow* window, Backdrop backdrop)
        : PaintNode(window), backdrop_(std::move(backdrop)) {}

    void set(const QRectF& strip) { changed(strip); }

protected:
    void paint(QPainter& painter) override {
        if (painter.device()->devType() != QInternal::Image) {
            return;
        }
        // Where this is painted anew, so is the cover, and nowhere else.
        const auto& target = *static_cast<QImage*>(painter.device());
        *backdrop_ = target.copy(devicePixels(painter, rect()))
                         .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        backdrop_->setDevicePixelRatio(1);
    }

private:
    Backdrop backdrop_;
};

class FadeNode final : public PaintNode {
public:
    FadeNode(QQuickWindow* window, Backdrop backdrop)
        : PaintNode(window), backdrop_(std::move(backdrop)) {}

    void set(const QRectF& strip, const QLinearGradient& mask) {
        mask_ = mask;
        changed(strip);
    }

protected:
    void paint(QPainter& painter) override {
        const QRect place = devicePixels(painter, rect());
        if (backdrop_->size() != place.size()) {
            return;
        }
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setOpacity(1);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(rect(), mask_);

        QImage rest = *backdrop_;
        QPainter eraser(&rest);
        eraser.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        const QTransform toStrip = painter.deviceTransform();
        eraser.setTransform(toStrip * QTransform::fromTranslate(-place.x(), -place.y()));
        eraser.fillRect(rect(), mask_);
        eraser.end();

        painter.setCompositionMode(QPainter::CompositionMode_Plus);
        painter.drawImage(rect(), rest);
    }

private:
    Backdrop backdrop_;
    QLinearGradient mask_;
};

/// Painted over the children.
class Cover final : public QQuickItem {
public:
    Cover(FadingEdge& owner, Backdrop backdrop)
        : QQuickItem(&owner), owner_(owner), backdrop_(std::move(backdrop)) {
        setFlag(ItemHasContents);
        setZ(1000);
    }

    [[nodiscard]] const Backdrop& backdrop() const { return backdrop_; }

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) override {
        if (owner_.strip().isEmpty()) {
            delete old;
            return nullptr;
        }
        auto* node =
            old == nullptr ? new FadeNode(window(), backdrop_) : static_cast<FadeNode*>(old);
        node->set(owner_.strip(), owner_.mask());
        return node;
    }

private:
    FadingEdge& owner_;
    Backdrop backdrop_;
};

} // namespace

FadingEdge::FadingEdge(QQuickItem* parent)
    : QQuickItem(parent), cover_(new Cover(*this, std::make_shared<QImage>())) {
    setFlag(ItemHasContents);
    connect(this, &FadingEdge::changed, this, [this] {
        update();
        cover_->update();
    });
}

QRectF FadingEdge::strip() const {
    const double span = std::min(length_, edge_ == Right ? width() : height());
    switch (edge_) {
    case Right:
        return {width() - span, 0, span, height()};
    case Top:
        return {0, 0, width(), span};
    case Bottom:
        break;
    }
    return {0, height() - span, width(), span};
}

QLinearGradient FadingEdge::mask() const {
    const QRectF area = strip();
    QLinearGradient gradient(edge_ == Top ? area.bottomLeft() : area.topLeft(),
                             edge_ == Right    ? area.topRight()
                             : edge_ == Bottom ? area.bottomLeft()
                                               : area.topLeft());
    gradient.setColorAt(0, Qt::black);
    gradient.setColorAt(1, Qt::transparent);
    return gradient;
}

QSGNode* FadingEdge::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    if (strip().isEmpty()) {
        delete old;
        return nullptr;
    }
    const auto& cover = static_cast<const Cover&>(*cover_);
    auto* node =
        old == nullptr ? new KeepNode(window(), cover.backdrop()) : static_cast<KeepNode*>(old);
    node->set(strip());
    return node;
}

void FadingEdge::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    cover_->setSize(now.size());
    Q_EMIT changed();
}

} // namespace ravelo
