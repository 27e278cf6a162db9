#include "panel_fixture/PanelFixture.h"

#include <QAccessible>

namespace ravelo {

namespace {

constexpr auto store = Notices::Source::store;

TEST_F(Panel, showsANoticeOnEveryTabAndMovesTheContentDown) {
    world.notices.putAside(store, u"/data/store.json.unreadable"_s);
    open();
    for (const auto& [tab, below] : {std::pair(u"tab0"_s, u"search"_s),
                                     {u"tab1"_s, u"caption"_s},
                                     {u"tab2"_s, u"dropCard"_s}}) {
        clickOn(tab);
        const QQuickItem* notice = item(u"notice"_s);
        EXPECT_EQ(notice->mapToScene({0, 0}), QPointF(34, 204)) << qPrintable(tab);
        EXPECT_GE(item(below)->mapToScene({0, 0}).y(), 248) << qPrintable(tab);
    }
    clickOn(u"tab0"_s);
    clickOn(u"noticeDismiss"_s);
    EXPECT_TRUE(eventually([this] {
        view.window().grabWindow();
        return shown(u"notice"_s) == nullptr &&
               item(u"search"_s)->mapToScene({0, 0}) == QPointF(34, 204);
    }));
}

TEST_F(Panel, f6GoesToTheNoticeAndBack) {
    openSearch();
    press(Qt::Key_F6);
    EXPECT_TRUE(item(u"searchInput"_s)->hasActiveFocus()) << "there is no notice";
    world.notices.saveFailed(store, u"the disk is full"_s);
    world.scheduler.advance(Seconds(60));
    int tries = 0;
    QObject::connect(&world.notices, &Notices::tryAgain, [&tries] { ++tries; });
    item(u"notice"_s);
    press(Qt::Key_F6);
    press(Qt::Key_Return);
    EXPECT_EQ(tries, 1);
    press(Qt::Key_F6);
    EXPECT_TRUE(item(u"searchInput"_s)->hasActiveFocus());
    press(Qt::Key_F6);
    world.notices.saved(store);
    EXPECT_TRUE(item(u"searchInput"_s)->hasActiveFocus()) << "the button is gone";
}

TEST_F(Panel, hasAnAccessibleRoleAndName) {
    world.notices.putAside(store, u"/data/store.json.unreadable"_s);
    open();
    const auto spoken = [this] {
        return QAccessible::queryAccessibleInterface(item(u"notice"_s));
    };
    EXPECT_EQ(spoken()->role(), QAccessible::StatusBar);
    EXPECT_EQ(spoken()->text(QAccessible::Name),
              u"Saved copy put aside: store.json.unreadable, in Ravelo’s data folder. The history "
              "starts empty."_s);
    world.notices.saveFailed(store, u"the disk is full"_s);
    world.scheduler.advance(Seconds(60));
    EXPECT_EQ(spoken()->role(), QAccessible::AlertMessage);
    EXPECT_EQ(spoken()->text(QAccessible::Name),
              u"Not saved for 1 minute: the disk is full. Nothing is lost while Ravelo runs."_s);
}

} // namespace

} // namespace ravelo
