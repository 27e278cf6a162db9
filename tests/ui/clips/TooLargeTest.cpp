#include "panel_fixture/PanelFixture.h"

namespace ravelo {

namespace {

using Measure = TooLargeCopy::Measure;

constexpr TooLargeCopy largeText{Measure::bytesOfText, 14'885'000};

class TooLargeRow : public Panel {
protected:
    TooLargeRow() {
        world.store.togglePin(world.store.clips().back().id); // "third", the oldest, comes first.
    }

    QString part(int row, const QString& name) {
        return property(u"card%1"_s.arg(row), name, "text").toString();
    }

    [[nodiscard]] Clips& tab() { return *view.features().clips; }
};

TEST_F(TooLargeRow, isBelowThePinnedClipsWithoutADigit) {
    open();
    tab().showTooLarge(largeText);
    view.window().grabWindow();
    EXPECT_EQ(toast(), u"Too large to keep · 14.2 MB of text"_s);
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
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(pasteboardText(), world.store.clips()[1].text);
}

TEST_F(TooLargeRow, isRemovedByItsButtonByDeleteAndOnClosing) {
    tab().showTooLarge(largeText);
    EXPECT_EQ(toast(), QString()) << "it would not be seen";
    openSearch();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_TRUE(world.controller.isOpen());
    press(Qt::Key_Delete);
    EXPECT_EQ(tab().list()->count(), 3);
    EXPECT_EQ(world.store.clips().size(), 3);

    tab().showTooLarge(largeText);
    tab().showTooLarge({Measure::bytesOfImage, 80 << 20});
    EXPECT_EQ(tab().list()->count(), 4) << "the newest replaces the one before";
    view.window().grabWindow();
    const QQuickItem* card = hover(u"card1"_s);
    EXPECT_FALSE(find(card, u"pin"_s)->isVisible());
    click(view.window(), find(card, u"delete"_s)->mapToScene({12, 12}));
    EXPECT_EQ(tab().list()->count(), 3);

    tab().showTooLarge(largeText);
    close();
    EXPECT_EQ(tab().list()->count(), 3) << "it has been seen";
    tab().showTooLarge(largeText);
    world.store.clearClips();
    EXPECT_EQ(tab().list()->count(), 1);
}

TEST_F(Panel, returnCopiesTheFirstClipBelowATooLargeOne) {
    view.features().clips->showTooLarge(largeText);
    openByKey();
    press(Qt::Key_Return);
    EXPECT_EQ(pasteboardText(), u"first"_s);
}

TEST(TooLargeText, statesSizeAndLimit) {
    struct Case {
        TooLargeCopy copy;
        QString detail;
        QString message;
    };

    const Case cases[] = {
        {{Measure::bytesOfText, (8 << 20) + 1},
         u"Text of 8.1 MB, the limit is 8 MB"_s,
         u"8.1 MB of text"_s},
        {{Measure::bytesOfText, 8 << 20}, u"Text of more than 8 MB"_s, u"more than 8 MB of text"_s},
        {{Measure::bytesOfImage, 80 << 20},
         u"Image of 80 MB, the limit is 64 MB"_s,
         u"image of 80 MB"_s},
        {{Measure::bytesOfImage, 64 << 20},
         u"Image of more than 64 MB"_s,
         u"image of more than 64 MB"_s},
        {{Measure::pixelsOfImage, 50 << 20},
         u"Image of 50 megapixels, the limit is 32 megapixels"_s,
         u"image of 50 megapixels"_s},
        {{Measure::deepPixelsOfImage, 20 << 20},
         u"Image of 20 megapixels of 16 bits, the limit is 16 megapixels of 16 bits"_s,
         u"image of 20 megapixels of 16 bits"_s},
    };
    const QLocale english(u"en_US"_s);
    for (const Case& c : cases) {
        EXPECT_EQ(tooLargeDetail(c.copy, english), c.detail);
        EXPECT_EQ(tooLargeMessage(c.copy, english), u"Too large to keep · "_s + c.message);
    }
}

} // namespace

} // namespace ravelo
