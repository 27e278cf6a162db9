#include "ui/Shadow.h"

#include "ui/PaintNode.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace ravelo {

namespace {

struct ShadowLook {
    QColor color;
    double radius = 0;
    double blur = 0;
    double drop = 0;

    friend bool operator==(const ShadowLook&, const ShadowLook&) = default;
};

std::vector<double> bell(double deviation) {
    const int reach = static_cast<int>(std::ceil(deviation * 3));
    std::vector<double> weights;
    for (int i = -reach; i <= reach; ++i) {
        weights.push_back(std::exp(-i * i / (2 * deviation * deviation)));
    }
    const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
    for (double& weight : weights) {
        weight /= sum;
    }
    return weights;
}

/// Blurs along the lines and turns the picture, so that twice blurs both ways.
QImage blurredAndTurned(const QImage& from, const std::vector<double>& weights) {
    const int reach = static_cast<int>(weights.size() / 2);
    const auto middle = weights.begin() + reach;
    QImage to(from.height(), from.width(), QImage::Format_Alpha8);
    for (int y = 0; y < from.height(); ++y) {
        const uchar* line = from.constScanLine(y);
        for (int x = 0; x < from.width(); ++x) {
            double sum = 0;
            const int first = std::max(-reach, -x);
            const int last = std::min(reach, from.width() - 1 - x);
            for (int i = first; i <= last; ++i) {
                sum += line[x + i] * *(middle + i);
            }
            to.scanLine(x)[y] = static_cast<uchar>(std::lround(sum));
        }
    }
    return to;
}

QImage shadowImage(QSizeF size, double scale, double margin, const ShadowLook& look) {
    const QSizeF whole(size.width() + 2 * margin, size.height() + 2 * margin);
    const QSize pixels = (whole * scale).toSize();
    // What is very soft has no details: it is made small, or a large one would take seconds.
    constexpr double softEnough = 6;
    const double shrink = std::max(1.0, look.blur / 2 * scale / softEnough);
    const QSize drawn = (whole * scale / shrink).toSize().expandedTo({1, 1});
    QImage shape(drawn, QImage::Format_Alpha8);
    shape.fill(0);
    QPainter painter(&shape);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(drawn.width() / whole.width(), drawn.height() / whole.height());
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.color);
    painter.drawRoundedRect(QRectF(QPointF(margin, margin), size), look.radius, look.radius);
    painter.end();
    const auto weights = bell(look.blur / 2 * scale / shrink);
    const QImage soft = blurredAndTurned(blurredAndTurned(shape, weights), weights)
                            .scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);

    QImage tinted(pixels, QImage::Format_ARGB32_Premultiplied);
    tinted.fill(QColor(look.color.red(), look.color.green(), look.color.blue()));
    QPainter tint(&tinted);
    tint.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    tint.drawImage(0, 0, soft);
    return tinted;
}

class ShadowNode final : public PaintNode {
public:
    using PaintNode::PaintNode;

    void set(QSizeF size, const ShadowLook& look) {
        if (size == size_ && look == look_) {
            return;
        }
        size_ = size;
        look_ = look;
        image_ = {};
        changed(QRectF(QPointF(0, 0), size)
                    .marginsAdded({margin(), margin(), margin(), margin()})
                    .translated(0, look.drop));
    }

protected:
    void paint(QPainter& painter) override {
        const double scale = painter.device()->devicePixelRatio();
        if (image_.isNull() || scale != scale_) {
            scale_ = scale;
            image_ = shadowImage(size_, scale, margin(), look_);
        }
        QPainterPath body;
        body.addRoundedRect(QRectF(QPointF(0, 0), size_), look_.radius, look_.radius);
        QPainterPath around;
        around.addRect(rect());
        painter.setClipPath(around - body, Qt::IntersectClip);
        painter.drawImage(rect(), image_);
    }

private:
    [[nodiscard]] double margin() const { return std::ceil(look_.blur * 1.5); }

    QSizeF size_;
    ShadowLook look_;
    QImage image_;
    double scale_ = 1;
};

} // namespace

Shadow::Shadow(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &Shadow::changed, this, &QQuickItem::update);
}

QSGNode* Shadow::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    if (size().isEmpty() || blur_ <= 0) {
        delete old;
        return nullptr;
    }
    auto* node = old == nullptr ? new ShadowNode(window()) : static_cast<ShadowNode*>(old);
    node->set(size(), {color_, radius_, blur_, drop_});
    return node;
}

} // namespace ravelo
