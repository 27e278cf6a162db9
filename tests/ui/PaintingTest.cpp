// What is painted by hand, looked at pixel by pixel in the software scene graph.

#include "Input.h"
#include "ui/FadingEdge.h"
#include "ui/Label.h"
#include "ui/PanelBackground.h"
#include "ui/ThumbnailProvider.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QQuickPaintedItem>
#include <QTemporaryDir>

#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// A plain colour that can be changed; transparent enough to need what lies below it.
class Plain : public QQuickPaintedItem {
public:
    Plain(QQuickItem* parent, const QColor& color, const QRectF& place)
        : QQuickPaintedItem(parent), color_(color) {
        setPosition(place.topLeft());
        setSize(place.size());
    }

    void setColor(const QColor& color) {
        color_ = color;
        update();
    }

    void paint(QPainter* painter) override { painter->fillRect(boundingRect(), color_); }

private:
    QColor color_;
};

class Painting : public testing::Test {
public:
    Painting() {
        window.setColor(Qt::black);
        window.resize(200, 100);
    }

    QImage grab() { return window.grabWindow().convertToFormat(QImage::Format_RGB32); }

    struct Software {
        Software() {
            if (QQuickWindow::sceneGraphBackend() != u"software") {
                QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
            }
        }
    } software; // Before the window.

    QQuickWindow window;
};

int mixed(int above, int below, double share) {
    return static_cast<int>(std::lround(above * share + below * (1 - share)));
}

struct FadeCase {
    const char* name;
    FadingEdge::Edge edge;
    QPointF step; ///< From the beginning of the strip towards the edge.
};

class Fading : public Painting, public testing::WithParamInterface<FadeCase> {};

TEST_P(Fading, showsTheMoreOfWhatLiesBehindTheNearerToTheEdge) {
    const Plain behind(window.contentItem(), QColor(20, 90, 200), {0, 0, 200, 100});
    FadingEdge fade(window.contentItem());
    fade.setSize({200, 100});
    fade.setProperty("edge", GetParam().edge);
    fade.setProperty("length", 40.0);
    // Everything painted anew, then a part of it only: both must look the same.
    const Plain content(&fade, QColor(220, 30, 40, 254), {0, 0, 200, 100});
    Plain corner(&fade, QColor(1, 1, 1, 254), {190, 90, 10, 10});
    const QImage first = grab();
    corner.setColor(QColor(2, 2, 2, 254));
    corner.setVisible(false);
    const QImage second = grab();

    const bool down = GetParam().edge == FadingEdge::Bottom;
    for (const QImage& seen : {first, second}) {
        for (int i = -5; i < 40; i += 3) {
            const QPoint place = down ? QPoint(20, 60 + i) : QPoint(160 + i, 20);
            const double share = i < 0 ? 1 : 1 - (i + 0.5) / 40;
            const QColor color = seen.pixelColor(place);
            EXPECT_NEAR(color.red(), mixed(220, 20, share), 3) << i;
            EXPECT_NEAR(color.green(), mixed(30, 90, share), 3) << i;
            EXPECT_NEAR(color.blue(), mixed(40, 200, share), 3) << i;
        }
    }
    EXPECT_EQ(second.pixelColor(195, 95),
              second.pixelColor(down ? QPoint(20, 95) : QPoint(195, 20)));
}

INSTANTIATE_TEST_SUITE_P(Edges, Fading,
                         testing::Values(FadeCase{"bottom", FadingEdge::Bottom, {0, 1}},
                                         FadeCase{"right", FadingEdge::Right, {1, 0}}),
                         [](const auto& row) { return row.param.name; });

TEST_F(Painting, digitsOfOneWidthDoNotMoveWhatFollows) {
    TextStyle style;
    style.setSize(13);
    const auto width = [&](const QString& text, bool tabular) {
        Label label;
        label.setStyle(&style);
        label.setProperty("tabular", tabular);
        label.setProperty("text", text);
        return label.implicitWidth();
    };
    EXPECT_NE(width(u"11:11"_s, false), width(u"00:00"_s, false)) << "the font changed";
    EXPECT_EQ(width(u"11:11"_s, true), width(u"00:00"_s, true));
    EXPECT_EQ(width(u"no digit"_s, true), width(u"no digit"_s, false));
}

/// The columns of a picture that anything is painted in.
std::pair<int, int> extent(const QImage& image) {
    int first = image.width();
    int last = -1;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (qGray(image.pixel(x, y)) > 40) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
        }
    }
    return {first, last};
}

TEST_F(Painting, aLabelKeepsToItsWidth) {
    TextStyle style;
    style.setSize(13);
    Label label(window.contentItem());
    label.setStyle(&style);
    label.setProperty("text", u"a text that is far too long for this place"_s);
    label.setWidth(80);
    EXPECT_GT(label.implicitWidth(), 200);
    const auto [first, last] = extent(grab());
    EXPECT_LE(first, 2);
    EXPECT_LE(last, 80);
    EXPECT_GE(last, 60);

    label.setProperty("text", u"ab"_s);
    label.setProperty("centred", true);
    const auto [left, right] = extent(grab());
    EXPECT_NEAR((left + right) / 2.0, 40, 1.5);
}

struct LineCase {
    const char* name;
    LineMetrics metrics;
    double scale;
    double baseLine;
};

class BaseLine : public testing::TestWithParam<LineCase> {};

TEST_P(BaseLine, liesOnAWholeDevicePixel) {
    EXPECT_DOUBLE_EQ(GetParam().metrics.baseLine(GetParam().scale), GetParam().baseLine);
}

INSTANTIATE_TEST_SUITE_P(All, BaseLine,
                         testing::Values(LineCase{"title", {12.594, 3.14, 17}, 1, 13},
                                         LineCase{"titleFine", {12.594, 3.14, 17}, 2, 12.5},
                                         LineCase{"chip", {11.625, 2.89, 16}, 1, 12},
                                         LineCase{"chipFine", {11.625, 2.89, 16}, 2, 12},
                                         LineCase{"note", {15.5, 3.86, 25}, 1, 18}),
                         [](const auto& row) { return row.param.name; });

struct MaterialCase {
    const char* name;
    PanelMaterial material;
    int alphaAtTop;
    int alphaAtBottom;
};

class Material : public testing::TestWithParam<MaterialCase> {};

TEST_P(Material, isAsDenseAsTheDesktopAllows) {
    const QImage image = panelImage({927, 560}, 1, GetParam().material);
    EXPECT_NEAR(qAlpha(image.pixel(463, 2)), GetParam().alphaAtTop, 2);
    EXPECT_NEAR(qAlpha(image.pixel(463, 556)), GetParam().alphaAtBottom, 2);
    EXPECT_EQ(qAlpha(image.pixel(5, 300)), 0) << "beside the body";
    EXPECT_EQ(qAlpha(image.pixel(20, 557)), 0) << "outside the rounded corner";
}

// Material under black: 1 - (1 - a)(1 - b).
INSTANTIATE_TEST_SUITE_P(
    All, Material,
    testing::Values(MaterialCase{"blurred", {Backdrop::Blurred, 0.55, false}, 230, 202},
                    MaterialCase{"sharp", {Backdrop::Translucent, 0.55, false}, 248, 240},
                    MaterialCase{"opaque", {Backdrop::Opaque, 0.55, false}, 255, 255},
                    MaterialCase{"darkest", {Backdrop::Blurred, 1, false}, 255, 227},
                    MaterialCase{"lightest", {Backdrop::Blurred, 0.1, false}, 204, 199},
                    MaterialCase{"fullBlack", {Backdrop::Blurred, 0.55, true}, 255, 255}),
    [](const auto& row) { return row.param.name; });

struct ThumbnailCase {
    const char* name;
    QSize picture;
    QSize wanted;
};

class Thumbnails : public testing::TestWithParam<ThumbnailCase> {};

TEST_P(Thumbnails, showTheMiddleWithRoundCorners) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"picture.png"_s);
    QImage picture(GetParam().picture, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    QPainter painter(&picture);
    // A green middle as large as what is to be seen of it, and a little more.
    const QSize seen = GetParam().wanted.scaled(GetParam().picture, Qt::KeepAspectRatio);
    QRect middle(QPoint(0, 0), seen);
    middle.moveCenter(picture.rect().center());
    painter.fillRect(middle.adjusted(-2, -2, 2, 2), Qt::green);
    painter.end();
    ASSERT_TRUE(picture.save(path));

    const QImage image = thumbnail(path, GetParam().wanted, 7);
    ASSERT_EQ(image.size(), GetParam().wanted);
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
    const QPoint right(image.width() - 1, image.height() / 2);
    for (const QPoint place : {image.rect().center(), QPoint(0, image.height() / 2), right,
                               QPoint(image.width() / 2, image.height() - 1)}) {
        EXPECT_EQ(image.pixelColor(place), QColor(Qt::green)) << place.x() << " " << place.y();
    }
}

INSTANTIATE_TEST_SUITE_P(All, Thumbnails,
                         testing::Values(ThumbnailCase{"wide", {600, 100}, {28, 28}},
                                         ThumbnailCase{"tall", {90, 700}, {56, 56}},
                                         ThumbnailCase{"smaller", {20, 20}, {28, 28}},
                                         ThumbnailCase{"oblong", {300, 300}, {72, 56}}),
                         [](const auto& row) { return row.param.name; });

TEST(Thumbnail, isNullWhereThereIsNoPicture) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"text.png"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    EXPECT_TRUE(thumbnail(file.fileName(), {28, 28}, 7).isNull());
    EXPECT_TRUE(thumbnail(folder.filePath(u"missing.png"_s), {28, 28}, 7).isNull());
}

} // namespace

} // namespace ravelo
