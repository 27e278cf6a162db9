#include "live/window/PanelFixture.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <memory>
#include <ostream>

using namespace Qt::StringLiterals;

namespace ravelo::live {

namespace {

/// The panel over a desktop with two windows, of which `previous` has the focus.
class FocusTest : public PanelFixture {
public:
    FocusTest() {
        other =
            std::make_unique<OtherWindow>(OtherWindow::Kind::normal, QRect(1000, 600, 300, 200));
        previous =
            std::make_unique<OtherWindow>(OtherWindow::Kind::normal, QRect(300, 600, 300, 200));
    }

    void SetUp() override { show(u"DUMMY0"_s, {400, 200}); }

    void borrow() {
        panel.requestFocus({});
        ASSERT_TRUE(eventually([&] { return server.focus() == id(); })) << "no focus comes";
        ASSERT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == &window; }))
            << "Qt does not know of the focus";
    }

    /// What a window manager does about a click at that time.
    void focusOther(xcb_timestamp_t time) {
        xcb_set_input_focus(server.get(), XCB_INPUT_FOCUS_POINTER_ROOT, other->id(), time);
        static_cast<void>(server.focus()); // At the answer it is done.
    }

    std::unique_ptr<OtherWindow> other;
    std::unique_ptr<OtherWindow> previous;
};

TEST_F(FocusTest, TypingArrivesWhileItIsBorrowed) {
    borrow();
    ASSERT_TRUE(run(u"xdotool"_s, {u"key"_s, u"a"_s, u"B"_s, u"7"_s}));
    EXPECT_TRUE(eventually([&] { return window.typed == u"aB7"_s; })) << qPrintable(window.typed);
    panel.returnFocus();
    EXPECT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == nullptr; }));
    EXPECT_EQ(focus(), previous->id());
}

enum class Winner { previous, other, anyOther };

struct ReturnCase {
    const char* name;
    void (*meanwhile)(FocusTest&);
    Winner winner;

    friend std::ostream& operator<<(std::ostream& out, const ReturnCase& each) {
        return out << each.name;
    }
};

class FocusReturnTest : public FocusTest, public testing::WithParamInterface<ReturnCase> {};

TEST_P(FocusReturnTest, ReturnsToTheRightWindow) {
    borrow();
    GetParam().meanwhile(*this);
    panel.returnFocus();
    const xcb_window_t owner = focus();
    EXPECT_NE(owner, id());
    if (GetParam().winner == Winner::previous) {
        EXPECT_EQ(owner, previous->id());
    } else if (GetParam().winner == Winner::other) {
        EXPECT_EQ(owner, other->id());
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, FocusReturnTest,
    testing::Values(
        ReturnCase{"nothing happened", [](FocusTest&) {}, Winner::previous},
        ReturnCase{"asked for once more", [](FocusTest& test) { test.borrow(); }, Winner::previous},
        ReturnCase{"another was clicked",
                   [](FocusTest& test) {
                       click({1150, 700});
                       EXPECT_TRUE(
                           eventually([&] { return test.server.focus() == test.other->id(); }));
                   },
                   Winner::other},
        ReturnCase{"another was focused just now",
                   [](FocusTest& test) { test.focusOther(test.server.time()); }, Winner::other},
        ReturnCase{"the previous was closed", [](FocusTest& test) { test.previous.reset(); },
                   Winner::anyOther},
        ReturnCase{"the previous was iconified", [](FocusTest& test) { test.previous->iconify(); },
                   Winner::anyOther}));

TEST_F(FocusTest, AClickThatTheWindowManagerHandlesLateWins) {
    borrow();
    const xcb_timestamp_t clicked = server.time();
    // By now the window manager may not have received the click.
    static_cast<void>(eventually([&] { return server.time() > clicked; }));
    panel.returnFocus();
    EXPECT_EQ(focus(), previous->id());
    focusOther(clicked);
    EXPECT_EQ(server.focus(), other->id());
}

TEST_F(FocusTest, ReturningWithoutARequestChangesNothing) {
    panel.returnFocus();
    EXPECT_EQ(focus(), previous->id());
}

TEST_F(FocusTest, ARequestCancelledAtOnceHasNoEffect) {
    int answers = 0;
    const Handle subscription = events.onEvent([&](const xcb_generic_event_t& event) {
        answers += event.response_type == XCB_PROPERTY_NOTIFY ? 1 : 0;
    });
    panel.requestFocus({});
    panel.returnFocus();
    ASSERT_TRUE(eventually([&] { return answers > 0; })) << "the server's time does not come";
    EXPECT_EQ(focus(), previous->id());
}

TEST_F(PanelFixture, ATextFieldReceivesTyping) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickWindow quick;
    x11::X11PanelWindow quickPanel(quick, *connection, events, screens, compositor, cover, drags,
                                   inputFocus);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nTextInput { width: 400; height: 200 }", QUrl());
    const std::unique_ptr<QObject> field(component.create());
    ASSERT_NE(field, nullptr) << qPrintable(component.errorString());
    auto* item = qobject_cast<QQuickItem*>(field.get());
    item->setParentItem(quick.contentItem());
    QObject::connect(item, &QQuickItem::activeFocusChanged, &quick,
                     [panel = &quickPanel] { panel->requestFocus({}); });
    const OtherWindow editor(OtherWindow::Kind::normal, {300, 600, 300, 200});

    quickPanel.place(screens.monitor(u"DUMMY0"_s)->screen, {400, 200});
    quickPanel.orderFront();
    const auto quickId = static_cast<xcb_window_t>(quick.winId());
    ASSERT_TRUE(eventually([&] { return server.isViewable(quickId); }));
    EXPECT_EQ(focus(), editor.id());
    click(server.geometry(quickId).center());
    ASSERT_TRUE(eventually([&] { return item->hasActiveFocus() && quick.isActive(); }))
        << "the click does not bring the focus";
    ASSERT_TRUE(run(u"xdotool"_s, {u"key"_s, u"N"_s, u"o"_s, u"BackSpace"_s, u"e"_s}));
    EXPECT_TRUE(eventually([&] { return item->property("text").toString() == u"Ne"_s; }))
        << qPrintable(item->property("text").toString());
    quickPanel.returnFocus();
    EXPECT_EQ(focus(), editor.id());
}

} // namespace

} // namespace ravelo::live
