#include "ui/notes/Drawing.h"

#include <gtest/gtest.h>

namespace ravelo {

namespace {

Stroke stroke(const QList<QPointF>& points) {
    return {QUuid::createUuid(), points};
}

/// How dark pixels are, in all.
int ink(const QImage& image) {
    int dark = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            dark += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
        }
    }
    return dark;
}

TEST(Drawing, TheEraserCutsAStrokeBetweenItsPoints) {
    const QList<Stroke> drawing{stroke({{0, 50}, {200, 50}})};
    const auto left = drawing::erased(drawing, {{100, 0}, {100, 100}});
    ASSERT_TRUE(left);
    ASSERT_EQ(left->size(), 2) << "a cut makes two";
    EXPECT_NEAR(left->at(0).points.last().x(), 100 - drawing::eraserRadius, 1.5);
    EXPECT_NEAR(left->at(1).points.first().x(), 100 + drawing::eraserRadius, 1.5);
    EXPECT_EQ(left->at(0).points.first(), QPointF(0, 50));
    EXPECT_EQ(left->at(1).points.last(), QPointF(200, 50));
    EXPECT_NE(left->at(0).id, left->at(1).id);
    EXPECT_FALSE(drawing::erased(drawing, {{100, 80}, {180, 80}})) << "it passed beside it";
    EXPECT_EQ(drawing::erased(drawing, {{-20, 50}, {220, 50}}), QList<Stroke>()) << "all of it";
    EXPECT_FALSE(drawing::erased(drawing, {{qQNaN(), 50}, {220, 50}}));
}

TEST(Drawing, AbsurdDataFindsNoRoom) {
    using drawing::Room;
    QList<Stroke> drawing{stroke({{1, 1}})};
    EXPECT_EQ(drawing::roomFor({1, 2}, drawing), Room::lastStroke);
    for (const double absurd : {qQNaN(), qInf(), 1e300, -1e6}) {
        EXPECT_EQ(drawing::roomFor({absurd, 0}, drawing), Room::none) << absurd;
        EXPECT_EQ(drawing::roomFor({0, absurd}, drawing), Room::none) << absurd;
    }
    drawing.last().points = QList<QPointF>(drawing::maxStrokePoints, {1, 1});
    EXPECT_EQ(drawing::roomFor({1, 2}, drawing), Room::newStroke);
    drawing = QList<Stroke>(11, stroke(drawing.last().points));
    EXPECT_EQ(drawing::roomFor({1, 2}, drawing), Room::none) << "it is full";
}

TEST(Drawing, ThePictureHoldsAllThatIsDrawn) {
    EXPECT_TRUE(drawing::picture({}).isNull());
    const QImage dot = drawing::picture({stroke({{500, 400}})});
    EXPECT_GT(ink(dot), 8) << "a dot is drawn";
    const QImage line = drawing::picture({stroke({{0, 0}, {50, 0}, {100, 0}})});
    EXPECT_NEAR(line.width(), 2 * (100 + 24 + drawing::penWidth), 2);
    EXPECT_NEAR(ink(line), 2 * 100 * 2 * drawing::penWidth, 150);
    // From a damaged file: the rest is drawn all the same, and soon.
    const QList<QPointF> many(1'000'000, {3, 3});
    const QImage odd = drawing::picture({stroke({{0, 0}, {1e300, 5}, {qQNaN(), 7}, {9, 9}}),
                                         stroke({{10, 10}, {60, 10}}), stroke(many)});
    EXPECT_GT(ink(odd), 100);
    EXPECT_LT(odd.width(), 300);
}

TEST(Drawing, APartLooksLikeThatPartOfTheWhole) {
    const auto drawn = [](const QList<QRect>& parts) {
        QImage image(200, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        for (const QRect& part : parts) {
            painter.setClipRect(part);
            drawing::paint(painter, Qt::black,
                           {stroke({{5, 5}, {60, 90}, {90, 20}, {190, 60}, {150, 95}})}, part);
        }
        painter.end();
        return image;
    };
    EXPECT_EQ(drawn({{0, 0, 200, 100}}),
              drawn({{0, 0, 70, 100}, {70, 0, 130, 40}, {70, 40, 130, 60}}));
}

} // namespace

} // namespace ravelo
