#include "ui/paint/Shadow.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace ravelo {

namespace {

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

/// Blurs rows and transposes, so that two calls blur both ways.
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

} // namespace

QImage Shadow::image(const Look& look) {
    const double margin = look.margin;
    const QSizeF whole(look.size.width() + 2 * margin, look.size.height() + 2 * margin);
    const QSize pixels = (whole * look.scale).toSize();
    // Strong blurs are computed at a reduced size; full size would take seconds.
    constexpr double softEnough = 6;
    const double shrink = std::max(1.0, look.blur / 2 * look.scale / softEnough);
    const QSize drawn = (whole * look.scale / shrink).toSize().expandedTo({1, 1});
    QImage shape(drawn, QImage::Format_Alpha8);
    shape.fill(0);
    QPainter painter(&shape);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(drawn.width() / whole.width(), drawn.height() / whole.height());
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.color);
    painter.drawRoundedRect(QRectF(QPointF(margin, margin), look.size), look.radius, look.radius);
    painter.end();
    const auto weights = bell(look.blur / 2 * look.scale / shrink);
    const QImage soft = blurredAndTurned(blurredAndTurned(shape, weights), weights)
                            .scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);

    QImage tinted(pixels, QImage::Format_ARGB32_Premultiplied);
    tinted.fill(QColor(look.color.red(), look.color.green(), look.color.blue()));
    QPainter tint(&tinted);
    tint.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    tint.drawImage(0, 0, soft);
    return tinted;
}

double Shadow::margin() const {
    return std::ceil(blur_ * 1.5);
}

QRectF Shadow::paintedRect() const {
    if (size().isEmpty() || blur_ <= 0) {
        return {};
    }
    const double all = margin();
    return boundingRect().marginsAdded({all, all, all, all}).translated(0, drop_);
}

void Shadow::paint(QPainter& painter) {
    const Look look{size(), painter.device()->devicePixelRatio(), margin(), color_, radius_, blur_};
    if (image_.isNull() || look != look_) {
        look_ = look;
        image_ = image(look);
    }
    QPainterPath body;
    body.addRoundedRect(boundingRect(), radius_, radius_);
    QPainterPath around;
    around.addRect(paintedRect());
    painter.setClipPath(around - body, Qt::IntersectClip);
    painter.drawImage(paintedRect(), image_);
}

} // namespace ravelo
