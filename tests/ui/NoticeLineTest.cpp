// What the panel has to say by itself: notices, and a copy that was too large.

#include "PanelFixture.h"

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
    open();
    clickOn(u"searchInput"_s);
    press(view.window(), Qt::Key_F6);
    EXPECT_TRUE(item(u"searchInput"_s)->hasActiveFocus()) << "there is no notice";
    world.notices.saveFailed(store, u"the disk is full"_s);
    world.scheduler.advance(Seconds(60));
    int tries = 0;
    world.notices.onTryAgain = [&tries] {
        ++tries;
    };
    item(u"notice"_s);
    press(view.window(), Qt::Key_F6);
    press(view.window(), Qt::Key_Return);
    EXPECT_EQ(tries, 1);
    press(view.window(), Qt::Key_F6);
    EXPECT_TRUE(item(u"searchInput"_s)->hasActiveFocus());
    press(view.window(), Qt::Key_F6);
    world.notices.saved(store);
    EXPECT_TRUE(item(u"searchInput"_s)->hasActiveFocus()) << "the button is gone";
}

TEST_F(Panel, tellsAScreenReaderWhatKindOfNoticeItIs) {
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

using Measure = TooLargeCopy::Measure;

constexpr TooLargeCopy largeText{Measure::bytesOfText, 14'885'000};

class TooLargeRow : public Panel {
protected:
    TooLargeRow() {
        world.store.togglePin(world.store.clips().back().id); // "third", the oldest, comes first.
    }

    QString part(int row, const QString& name) {
        return in(u"card%1"_s.arg(row), name)->property("text").toString();
    }
};

TEST_F(TooLargeRow, comesBelowThePinnedOnesAndTakesNoDigit) {
    open();
    view.host().tellTooLarge(largeText);
    view.window().grabWindow();
    EXPECT_EQ(view.host().toast()->text(), u"Too large to keep · 14.2 MB of text"_s);
    EXPECT_EQ(part(1, u"title"_s), u"Too large to keep"_s);
    EXPECT_EQ(part(1, u"subtitle"_s), u"Text of 14.2 MB, the limit is 8 MB · just now"_s);
    QStringList digits;
    for (int row = 0; row < 4; ++row) {
        digits.append(part(row, u"digit"_s));
    }
    EXPECT_EQ(digits, (QStringList{u"1"_s, {}, u"2"_s, u"3"_s}));
    clickOn(u"card1"_s);
    EXPECT_EQ(pasteboardText(), QString());
    clickOn(u"searchInput"_s);
    press(view.window(), Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(pasteboardText(), world.store.clips()[1].text);
}

TEST_F(TooLargeRow, isNeverCopiedAndGoesByItsButtonByDeleteAndWithThePanel) {
    view.host().tellTooLarge(largeText);
    EXPECT_EQ(view.host().toast()->text(), QString()) << "nobody would see it";
    open();
    clickOn(u"searchInput"_s);
    press(view.window(), Qt::Key_Down);
    press(view.window(), Qt::Key_Return);
    EXPECT_TRUE(world.controller.isOpen());
    press(view.window(), Qt::Key_Delete);
    EXPECT_EQ(view.host().clips()->count(), 3);
    EXPECT_EQ(world.store.clips().size(), 3);

    view.host().tellTooLarge(largeText);
    view.host().tellTooLarge({Measure::bytesOfImage, 80 << 20});
    EXPECT_EQ(view.host().clips()->count(), 4) << "the newest replaces the one before";
    view.window().grabWindow();
    const QQuickItem* card = item(u"card1"_s);
    send(view.window(), QEvent::MouseMove, card->mapToScene({400, 20}));
    EXPECT_FALSE(find(card, u"pin"_s)->isVisible());
    click(view.window(), find(card, u"delete"_s)->mapToScene({12, 12}));
    EXPECT_EQ(view.host().clips()->count(), 3);

    view.host().tellTooLarge(largeText);
    close();
    EXPECT_EQ(view.host().clips()->count(), 3) << "it has been seen";
    view.host().tellTooLarge(largeText);
    world.store.clearClips();
    EXPECT_EQ(view.host().clips()->count(), 1);
}

TEST_F(Panel, copiesTheFirstClipByReturnAlsoBelowATooLargeOne) {
    view.host().tellTooLarge(largeText);
    world.controller.toggle();
    view.window().resize(world.controller.frame().size().toSize());
    view.window().grabWindow();
    press(view.window(), Qt::Key_Return);
    EXPECT_EQ(pasteboardText(), u"first"_s);
}

struct SizeCase {
    const char* name;
    TooLargeCopy copy;
    QString detail;
    QString message;
};

class TooLargeText : public testing::TestWithParam<SizeCase> {};

TEST_P(TooLargeText, saysHowMuchItIs) {
    const QLocale english(u"en_US"_s);
    EXPECT_EQ(tooLargeDetail(GetParam().copy, english), GetParam().detail);
    EXPECT_EQ(tooLargeMessage(GetParam().copy, english),
              u"Too large to keep · "_s + GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    All, TooLargeText,
    testing::Values(SizeCase{"justOver",
                             {Measure::bytesOfText, (8 << 20) + 1},
                             u"Text of 8.1 MB, the limit is 8 MB"_s,
                             u"8.1 MB of text"_s},
                    SizeCase{"unknownText",
                             {Measure::bytesOfText, 8 << 20},
                             u"Text of more than 8 MB"_s,
                             u"more than 8 MB of text"_s},
                    SizeCase{"image",
                             {Measure::bytesOfImage, 80 << 20},
                             u"Image of 80 MB, the limit is 64 MB"_s,
                             u"image of 80 MB"_s},
                    SizeCase{"unknownImage",
                             {Measure::bytesOfImage, 64 << 20},
                             u"Image of more than 64 MB"_s,
                             u"image of more than 64 MB"_s},
                    SizeCase{"manyPixels",
                             {Measure::pixelsOfImage, 50 << 20},
                             u"Image of 50 megapixels, the limit is 32 megapixels"_s,
                             u"image of 50 megapixels"_s}),
    [](const auto& row) { return row.param.name; });

} // namespace

} // namespace ravelo
