#include "live/window/PanelFixture.h"

#include <xcb/shape.h>

using namespace Qt::StringLiterals;

namespace ravelo::live {

namespace {

/// Over a focused full-screen window and a bar, which keep their focus and their place.
TEST_F(PanelFixture, IsAtTheTopCentreAboveAllAndTakesNoFocus) {
    for (const auto& [name, size] : {std::pair(u"DUMMY0"_s, QSizeF(200, 12)),
                                     {u"DUMMY0"_s, {520, 34}},
                                     {u"DUMMY0"_s, {927, 500}},
                                     {u"DUMMY1"_s, {200, 12}},
                                     {u"DUMMY1"_s, {641, 560}}}) {
        SCOPED_TRACE(testing::Message() << qPrintable(name) << ", " << size.width() << " wide");
        const QRect monitor = screens.monitor(name)->native;
        const OtherWindow bar(OtherWindow::Kind::dock, QRect(monitor.topLeft(), QSize(800, 30)));
        show(name, {200, 12});
        const OtherWindow movie(OtherWindow::Kind::fullScreen, monitor);
        show(name, size);
        EXPECT_TRUE(server.isAbove(id(), movie.id()));
        EXPECT_TRUE(server.isAbove(id(), bar.id()));
        EXPECT_EQ(server.focus(), movie.id());
    }
}

class PanelTest : public PanelFixture {
public:
    /// The rectangles of a shape as the server knows it.
    QRegion shape(xcb_shape_kind_t kind) {
        const x11::Owned<xcb_shape_get_rectangles_reply_t> reply(xcb_shape_get_rectangles_reply(
            server.get(), xcb_shape_get_rectangles(server.get(), id(), kind), nullptr));
        QRegion region;
        const auto* rectangles = xcb_shape_get_rectangles_rectangles(reply.get());
        for (int i = 0; i < xcb_shape_get_rectangles_rectangles_length(reply.get()); ++i) {
            region +=
                QRect(rectangles[i].x, rectangles[i].y, rectangles[i].width, rectangles[i].height);
        }
        return region;
    }

    [[nodiscard]] QRect wholeWindow() { return {{}, server.geometry(id()).size()}; }
};

TEST_F(PanelTest, ComesAboveWhenAskedAndWhenTheWindowManagerHasNewWindows) {
    show(u"DUMMY0"_s, {200, 12});
    const OtherWindow popup(OtherWindow::Kind::popup, {0, 0, 1920, 500});
    ASSERT_TRUE(server.isAbove(popup.id(), id()));
    panel.orderFront();
    EXPECT_TRUE(eventually([&] { return server.isAbove(id(), popup.id()); })) << "when asked to";
    const OtherWindow popup2(OtherWindow::Kind::popup, {0, 0, 1920, 500});
    ASSERT_TRUE(server.isAbove(popup2.id(), id()));
    const OtherWindow bar(OtherWindow::Kind::dock, {0, 0, 1920, 30});
    EXPECT_TRUE(eventually([&] { return server.isAbove(id(), popup2.id()); })) << "with a bar";
    const OtherWindow frame(OtherWindow::Kind::popup, {0, 0, 1920, 500});
    ASSERT_TRUE(server.isAbove(frame.id(), id()));
    server.setCardinals(server.root(), "_NET_ACTIVE_WINDOW", {frame.id()}, XCB_ATOM_WINDOW);
    EXPECT_TRUE(eventually([&] { return server.isAbove(id(), frame.id()); }))
        << "i3 changes nothing else";
}

TEST_F(PanelTest, ShowsItsFirstPictureBeforeAnythingIsDrawn) {
    const x11::Monitor& monitor = *screens.monitor(u"DUMMY0"_s);
    // The pixel in the middle in this size, while no event of Qt's is handled.
    const auto shown = [&](QSizeF size) {
        panel.place(monitor.screen, size);
        const QRect expected = topCentre(monitor, size);
        for (int asked = 0; asked < 1000 && server.geometry(id()) != expected; ++asked) {
        }
        const x11::Owned<xcb_get_image_reply_t> reply(xcb_get_image_reply(
            server.get(),
            xcb_get_image(server.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, id(),
                          static_cast<int16_t>(expected.width() / 2),
                          static_cast<int16_t>(expected.height() / 2), 1, 1, ~0U),
            nullptr));
        return reply ? *reinterpret_cast<const QRgb*>(xcb_get_image_data(reply.get())) : 1;
    };
    show(u"DUMMY0"_s, {200, 12});
    const QSizeF size(400, 300);
    const QRgb color = qRgba(20, 40, 60, 200);
    QImage picture((size * monitor.scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(color);
    ASSERT_TRUE(panel.setFirstPicture(picture));
    EXPECT_EQ(shown(size), color);
    EXPECT_EQ(shown({401, 300}), 0U) << "a picture of another size";
    ASSERT_TRUE(panel.setFirstPicture({}));
    EXPECT_EQ(shown(size), 0U) << "it was taken back";
}

/// A body of 360x200 with a top edge of 400, as the panel has it.
QPainterPath flaredOutline() {
    QPainterPath outline;
    outline.addPolygon(QPolygonF({QPointF(0, 0), QPointF(400, 0), QPointF(380, 20),
                                  QPointF(380, 200), QPointF(20, 200), QPointF(20, 20)}));
    outline.closeSubpath();
    return outline;
}

TEST_F(PanelTest, GetsTheClicksWhereItIsSeen) {
    const std::pair<QPointF, bool> cases[] = {
        {{200, 100}, true},
        {{200, 0}, true},
        {{3, 1}, true},
        {{398, 0}, true},
        {{21, 199}, true},
        // Below the title of the window there, whatever its font.
        {{3, 60}, false},
        {{382, 45}, false},
        {{398, 199}, false}};
    for (const auto& [place, isPanels] : cases) { // In the window's logical pixels.
        SCOPED_TRACE(testing::Message() << place.x() << "," << place.y());
        window.presses = 0;
        show(u"DUMMY0"_s, {200, 12});
        OtherWindow below(OtherWindow::Kind::normal, {0, 0, 1920, 1080});
        show(u"DUMMY0"_s, {400, 200});
        panel.setOutline(flaredOutline());
        window.hide();
        show(u"DUMMY0"_s, {400, 200});
        const QPointF offset = place * window.devicePixelRatio();
        click(server.geometry(id()).topLeft() + offset.toPoint());
        ASSERT_TRUE(eventually([&] { return window.presses + below.presses() > 0; }))
            << "the click got lost";
        EXPECT_EQ(window.presses, isPanels ? 1 : 0);
        EXPECT_EQ(below.presses(), isPanels ? 0 : 1);
    }
}

TEST_F(PanelTest, IsCutToItsOutlineWhileThereIsNoCompositor) {
    show(u"DUMMY0"_s, {400, 200});
    panel.setOutline(flaredOutline());
    int changes = 0;
    const Handle subscription = panel.onShowThroughChange([&] { ++changes; });
    ASSERT_TRUE(eventually([&] { return shape(XCB_SHAPE_SK_INPUT) != QRegion(wholeWindow()); }));
    const QRegion outline = shape(XCB_SHAPE_SK_INPUT);
    EXPECT_EQ(shape(XCB_SHAPE_SK_BOUNDING), outline);
    EXPECT_EQ(panel.showThrough(), PanelWindow::ShowThrough::none);
    {
        const Client picom(u"picom"_s,
                           {u"--backend"_s, u"xrender"_s, u"--config"_s, u"/dev/null"_s});
        ASSERT_TRUE(eventually([&] { return changes == 1; })) << "the compositor is not seen";
        EXPECT_EQ(panel.showThrough(), PanelWindow::ShowThrough::sharp);
        EXPECT_TRUE(eventually([&] {
            return shape(XCB_SHAPE_SK_BOUNDING) == QRegion(wholeWindow());
        })) << "the window is still cut";
        EXPECT_EQ(shape(XCB_SHAPE_SK_INPUT), outline);

        constexpr auto announcement = "_KDE_NET_WM_BLUR_BEHIND_REGION"; // As KWin makes it.
        server.setCardinals(server.root(), announcement, {0});
        ASSERT_TRUE(eventually([&] { return changes == 2; })) << "the blur is not seen";
        EXPECT_EQ(panel.showThrough(), PanelWindow::ShowThrough::blurred);
        xcb_delete_property(server.get(), server.root(), server.atom(announcement));
        xcb_flush(server.get());
        ASSERT_TRUE(eventually([&] { return changes == 3; })) << "the end of the blur is not seen";
        EXPECT_EQ(panel.showThrough(), PanelWindow::ShowThrough::sharp);
    }
    ASSERT_TRUE(eventually([&] { return changes == 4; })) << "the compositor's end is not seen";
    EXPECT_EQ(panel.showThrough(), PanelWindow::ShowThrough::none);
    EXPECT_TRUE(eventually([&] { return shape(XCB_SHAPE_SK_BOUNDING) == outline; }))
        << "the window is not cut again";
}

TEST_F(PanelTest, SetsTheCompositorsProperties) {
    show(u"DUMMY0"_s, {400, 200});
    panel.setOutline(flaredOutline());
    ASSERT_TRUE(eventually([&] { return shape(XCB_SHAPE_SK_INPUT) != QRegion(wholeWindow()); }));
    EXPECT_EQ(server.cardinals(id(), "_COMPTON_SHADOW"), std::vector<uint32_t>{0});
    QRegion blurred;
    const auto cardinals = server.cardinals(id(), "_KDE_NET_WM_BLUR_BEHIND_REGION");
    for (size_t i = 0; i + 3 < cardinals.size(); i += 4) {
        const auto number = [&](size_t offset) {
            return static_cast<int>(cardinals[i + offset]);
        };
        blurred += QRect(number(0), number(1), number(2), number(3));
    }
    EXPECT_EQ(blurred, shape(XCB_SHAPE_SK_INPUT));
}

} // namespace

} // namespace ravelo::live
