#include "ui/paint/Box.h"

#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class PaintableBox : public Box {
public:
    using Box::paint;
};

struct Look {
    const char* name;
    QSizeF size;
    double radius;
    QColor color;
    QColor line = Qt::transparent;
    double lineWidth = 0;
    double scale = 1;
    QPointF place = {5, 5};
    int maxDifference = 1; ///< Of 255, of any channel of a pixel.
};

QImage canvas(double scale) {
    QImage image(QSize(400, 500), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::darkBlue);
    return image;
}

template <typename Paint>
QImage painted(const Look& look, const Paint& paint) {
    QImage image = canvas(look.scale);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(look.place);
    paint(painter);
    return image;
}

QImage asBox(const Look& look) {
    PaintableBox box;
    box.setSize(look.size);
    box.setProperty("radius", look.radius);
    box.setProperty("color", look.color);
    box.setProperty("lineColor", look.line);
    box.setProperty("lineWidth", look.lineWidth);
    return painted(look, [&](QPainter& painter) { box.paint(painter); });
}

QImage asPath(const Look& look) {
    return painted(look, [&](QPainter& painter) {
        const double radius =
            std::min({look.radius, look.size.width() / 2, look.size.height() / 2});
        const QRectF rect(QPointF(), look.size);
        painter.setPen(Qt::NoPen);
        painter.setBrush(look.color);
        painter.drawRoundedRect(rect, radius, radius);
        if (look.lineWidth > 0) {
            const double half = look.lineWidth / 2;
            painter.setPen(QPen(look.line, look.lineWidth));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), radius - half,
                                    radius - half);
        }
    });
}

int difference(const QImage& one, const QImage& other) {
    int most = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            most = std::max({most, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                             std::abs(qBlue(a) - qBlue(b))});
        }
    }
    return most;
}

int threads() {
    return static_cast<int>(
        QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
}

TEST(Box, looksLikeARoundedRectangleAndUsesNoOtherThread) {
    const QColor faint(255, 255, 255, 20);
    const QColor line(255, 200, 100, 90);
    const Look looks[] = {
        {"row", {360, 40}, 10, faint},
        {"row with a line", {360, 40}, 10, faint, line, 1.5},
        {"capsule", {90, 32}, 16, faint, line, 1},
        {"tall", {300, 450}, 14, faint, line, 1},
        {"without corners", {300, 450}, 0, faint, line, 2},
        {"opaque", {300, 450}, 12, QColor(30, 30, 33), line, 1},
        {"circle", {60, 60}, 30, faint},
        {"scale 2", {150, 200}, 10, faint, line, 1.5, 2},
        {"scale 1.25, between pixels", {250, 300}, 10, faint, line, 1, 1.25, {5.3, 4.7}, 2},
    };
    std::vector<QImage> boxes;
    const int before = threads();
    for (const Look& look : looks) {
        boxes.push_back(asBox(look));
        EXPECT_LE(threads(), before) << look.name << ": a thread was started";
    }
    for (size_t i = 0; i < boxes.size(); ++i) {
        const Look& look = looks[i];
        const QImage& box = boxes[i];
        SCOPED_TRACE(look.name);
        EXPECT_NE(box, canvas(look.scale)) << "nothing is painted";
        EXPECT_LE(difference(box, asPath(look)), look.maxDifference);
    }
}

} // namespace

} // namespace ravelo
