#include "panel_fixture/PanelFixture.h"

#include <QImage>

namespace ravelo {

namespace {

TEST_F(Panel, showsTheNewestClipCopiedWhileClosed) {
    for (int i = 0; i < 20; ++i) {
        world.store.addClip(u"while it was closed %1"_s.arg(i));
    }
    open();
    const QQuickItem* newest = item(u"card0"_s);
    EXPECT_EQ(newest->mapToScene({0, 0}), QPointF(34, 280));
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(find(item(u"card%1"_s.arg(row)), u"title"_s)->property("text"),
                  u"while it was closed %1"_s.arg(19 - row));
    }
}

TEST_F(Panel, staysScrolledToTheNewestClip) {
    open();
    for (int i = 0; i < 20; ++i) {
        world.store.addClip(u"while it was open %1"_s.arg(i));
    }
    EXPECT_TRUE(eventually([this] {
        view.window().grabWindow();
        return item(u"card0"_s)->mapToScene({0, 0}) == QPointF(34, 280);
    }));
}

TEST_F(Panel, aClickCopies) {
    open();
    clickOn(u"card1"_s);
    EXPECT_EQ(pasteboardText(), u"second"_s);
    item(u"toast"_s);
    EXPECT_EQ(world.store.clips().size(), 3) << "its own copy became a clip";
    EXPECT_EQ(item(u"chip0"_s)->mapToScene({}).y(), item(u"addSnippet"_s)->mapToScene({}).y())
        << "side by side";
    clickOn(u"chip0"_s);
    EXPECT_EQ(pasteboardText(), world.store.snippets().first().body);
}

TEST_F(Panel, everyToastShowsItsText) {
    open();
    for (const char* const card : {"card1", "card2"}) {
        clickOn(QString::fromLatin1(card));
        EXPECT_EQ(in(u"toast"_s, u"message"_s)->property("text").toString(), u"Copied ✓"_s) << card;
        world.scheduler.advance(Seconds(20));
        EXPECT_TRUE(eventually([this] { return shown(u"toast"_s) == nullptr; })) << card;
    }
}

TEST_F(Panel, theButtonsOfTheHoveredRowPin) {
    open();
    EXPECT_EQ(shown(u"pin"_s), nullptr);
    const QQuickItem* card = hover(u"card2"_s);
    ASSERT_TRUE(find(card, u"pin"_s)->isVisible());
    clickMiddle(view.window(), find(card, u"pin"_s));
    EXPECT_TRUE(clips().startsWith(u"third*"_s)) << qPrintable(clips());
    EXPECT_EQ(pasteboardText(), QString()) << "the click went through to the row";
}

TEST_F(Panel, searchesWhateverIsTyped) {
    openTab(u"Shelf"_s);
    pressKeys(u"s e"_s);
    EXPECT_EQ(text(u"searchInput"_s), u"se"_s);
    EXPECT_EQ(text(u"tally"_s), u"1 of 3"_s);
}

TEST_F(Panel, showsTheSnippetsThatAreFoundOrElseAll) {
    openSearch();
    const auto count = [this] {
        return view.features().snippets.list()->rowCount();
    };
    const int all = count();
    pressKeys(u"z e l l e"_s);
    EXPECT_EQ(count(), 2);
    pressKeys(u"q q"_s);
    EXPECT_EQ(count(), all) << "no empty strip";
}

TEST_F(Panel, aTypedFilterBecomesATokenThatBackspaceRemoves) {
    openSearch();
    pressKeys(u"t y p e : i m a g e"_s);
    EXPECT_EQ(shown(u"token0"_s), nullptr) << "may become another word";
    press(Qt::Key_Space, Qt::NoModifier, u" "_s);
    item(u"token0"_s);
    EXPECT_EQ(text(u"searchInput"_s), QString());
    EXPECT_EQ(text(u"emptyDetail"_s), u"No images"_s);
    pressKeys(u"Backspace"_s);
    item(u"token0"_s); // Selected only.
    pressKeys(u"Backspace"_s);
    EXPECT_EQ(shown(u"token0"_s), nullptr);
    EXPECT_EQ(text(u"tally"_s), QString());

    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    pressKeys(u"Down Down Return x"_s);
    EXPECT_EQ(text(u"emptyDetail"_s), u"No link has \u201cx\u201d."_s);
    pressKeys(u"Esc"_s);
    EXPECT_EQ(text(u"tally"_s), QString());
    EXPECT_TRUE(world.controller.isOpen());
}

TEST_F(Panel, spaceShowsThePreviewOfTheCurrentRow) {
    openSearch();
    press(Qt::Key_Space, Qt::NoModifier, u" "_s);
    const auto shownText = [this] {
        return view.features().clips->preview()->text();
    };
    item(u"preview"_s);
    EXPECT_EQ(shownText(), u"first"_s);
    pressKeys(u"Down"_s);
    EXPECT_TRUE(eventually([&] { return shownText() == u"second"_s; }));
    pressKeys(u"Esc"_s);
    EXPECT_TRUE(eventually([this] { return shown(u"preview"_s) == nullptr; }));
    EXPECT_TRUE(world.controller.isOpen());

    pressKeys(u"s"_s);
    press(Qt::Key_Space, Qt::NoModifier, u" "_s);
    EXPECT_EQ(text(u"searchInput"_s), u"s "_s) << "a search may have spaces";
    press(Qt::Key_Space, Qt::ShiftModifier, u" "_s);
    item(u"preview"_s);
    world.store.clearClips();
    EXPECT_TRUE(eventually([this] { return shown(u"preview"_s) == nullptr; })) << "of no clip";
}

TEST_F(Panel, severalClipsAreChosenByShiftOrAllAndDeletedAtOnce) {
    openSearch();
    pressKeys(u"Shift+Down"_s);
    EXPECT_EQ(view.features().clips->selected(), 2);
    pressKeys(u"Shift+Up Esc"_s);
    EXPECT_EQ(view.features().clips->selected(), 0);
    EXPECT_TRUE(world.controller.isOpen());
    pressKeys(u"Shift+Down"_s);
    clickOn(u"card1"_s, Qt::RightButton);
    EXPECT_EQ(view.features().clips->selected(), 2);
    pressKeys(u"Esc"_s);
    clickOn(u"card2"_s, Qt::RightButton);
    EXPECT_EQ(view.features().clips->selected(), 0) << "the menu is about another row";
    pressKeys(u"Esc Ctrl+A Delete"_s);
    EXPECT_EQ(clips(), QString());
    EXPECT_EQ(toast(), u"3 deleted"_s);
    pressKeys(u"Ctrl+Z"_s);
    EXPECT_TRUE(eventually([this] { return clips() == u"first second third"_s; }));
}

TEST_F(Panel, thePointerOnATileShowsThePreviewUntilItLeaves) {
    open();
    const QQuickItem* card = hover(u"card1"_s);
    const auto point = [this](const QQuickItem* item) {
        send(view.window(), QEvent::MouseMove, item->mapToScene(item->boundingRect().center()));
    };
    point(find(card, u"tile"_s));
    item(u"preview"_s);
    EXPECT_EQ(view.features().clips->preview()->text(), u"second"_s);
    point(item(u"preview"_s));
    point(item(u"tabs"_s));
    EXPECT_TRUE(eventually([this] { return shown(u"preview"_s) == nullptr; }));
}

TEST_F(Panel, asksBeforeItClearsTheHistory) {
    struct Case {
        const char* name;
        std::function<void()> answer;
        qsizetype left;
    };

    const Case cases[] = {
        {"elsewhere", [this] { clickOn(u"card2"_s); }, 3},
        {"Escape", [this] { pressKeys(u"Esc"_s); }, 3},
        {"no", [this] { clickIn(u"clearQuestion"_s, u"no"_s); }, 3},
        {"yes", [this] { clickIn(u"clearQuestion"_s, u"yes"_s); }, 1},
        {"Return", [this] { pressKeys(u"Return"_s); }, 1},
    };
    open();
    world.store.togglePin(world.store.clips().first().id);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        if (world.store.clips().size() < 3) {
            world.store.addClip(u"one"_s);
            world.store.addClip(u"two"_s);
        }
        clickOn(u"trash"_s);
        EXPECT_EQ(world.store.clips().size(), 3);
        EXPECT_TRUE(world.window.focused) << "Return would go elsewhere";
        item(u"clearQuestion"_s);
        c.answer();
        EXPECT_EQ(world.store.clips().size(), c.left);
        EXPECT_TRUE(eventually([this] { return shown(u"clearQuestion"_s) == nullptr; }));
        EXPECT_TRUE(world.controller.isOpen());
    }
}

TEST_F(Panel, escapeClearsTheSearchAndThenCloses) {
    openSearch();
    EXPECT_TRUE(world.window.focused);
    type(u"second"_s);
    EXPECT_EQ(view.features().clips->list()->count(), 1);
    press(Qt::Key_Escape);
    EXPECT_EQ(view.features().clips->list()->count(), 3);
    EXPECT_TRUE(world.controller.isOpen());
    press(Qt::Key_Escape);
    EXPECT_FALSE(world.controller.isOpen());
}

TEST_F(Panel, aSearchWithoutAMatchShowsTheEmptyState) {
    openSearch();
    EXPECT_EQ(shown(u"emptyTitle"_s), nullptr);
    type(u"larkspurr"_s);
    EXPECT_EQ(text(u"emptyTitle"_s), u"No clipboard history yet"_s);
    EXPECT_EQ(text(u"emptySubtitle"_s), u"Copy anything with ⌘C and it shows up here."_s);
    EXPECT_EQ(text(u"emptyDetail"_s), u"Nothing has “larkspurr”"_s);
    world.store.clearClips();
    press(Qt::Key_Escape);
    EXPECT_EQ(shown(u"emptyDetail"_s), nullptr) << "there is no search";
}

TEST_F(Panel, keepsTheSearchWhileTheNoteIsShown) {
    openSearch();
    type(u"second"_s);
    clickOn(u"tab1"_s);
    EXPECT_EQ(shown(u"searchInput"_s), nullptr);
    clickOn(u"tab0"_s);
    EXPECT_EQ(text(u"searchInput"_s), u"second"_s);
    EXPECT_EQ(view.features().clips->list()->count(), 1);
}

struct KeysCase {
    const char* name;
    const char* keys;
    QString pasteboard;
    bool open;
    QString clips = u"0 1 2 3 4 5 6 7 8 9 10 11"_s; ///< Afterwards.
};

class Keys : public Panel, public testing::WithParamInterface<KeysCase> {
protected:
    Keys() : Panel(twelveClips()) {}

    static StoreData twelveClips() {
        StoreData data;
        for (int i = 0; i < 12; ++i) {
            data.clips.append(clip(QString::number(i), Seconds(60 * (i + 1))));
        }
        return data;
    }
};

TEST_P(Keys, workOnTheListOfAPanelOpenedByKey) {
    openByKey();
    EXPECT_TRUE(world.window.focused);
    pressKeys(QString::fromLatin1(GetParam().keys));
    EXPECT_EQ(clips(), GetParam().clips);
    EXPECT_EQ(pasteboardText(), GetParam().pasteboard);
    EXPECT_EQ(world.controller.isOpen(), GetParam().open);
    EXPECT_EQ(world.window.focused, GetParam().open) << "the keyboard goes with the panel";
}

INSTANTIATE_TEST_SUITE_P(
    All, Keys,
    testing::Values(
        KeysCase{"returnCopiesTheFirst", "Return", u"0"_s, false},
        KeysCase{"arrowsMove", "Up Down Down Up Return", u"1"_s, false},
        KeysCase{"pagesMove", "PgDown PgDown PgDown Enter", u"11"_s, false},
        KeysCase{"pagesMoveBack", "PgDown PgUp Return", u"0"_s, false},
        KeysCase{"controlDigitsCopy", "Ctrl+9", u"8"_s, false},
        KeysCase{"deleteDeletes", "Down Del", {}, true, u"0 2 3 4 5 6 7 8 9 10 11"_s},
        KeysCase{"deleteEditsASearch", "1 Home Del", {}, true},
        KeysCase{"aSearchStartsAtItsFirst", "Down Down 1 Return", u"1"_s, false},
        KeysCase{"controlPPins", "Down Ctrl+P", {}, true, u"1* 11 10 9 8 7 6 5 4 3 2 0"_s},
        KeysCase{"controlCCopiesAndStays", "Down Ctrl+C", u"1"_s, true},
        KeysCase{"controlReturnOpensNoText", "Ctrl+Return", {}, true},
        KeysCase{"controlFSearchesFromAnotherTab", "Ctrl+Tab Ctrl+F 7 Return", u"7"_s, false},
        KeysCase{"escapeClearsThenCloses", "5 Esc Esc", {}, false}),
    [](const auto& row) { return row.param.name; });

class PanelWithLongTexts : public Panel {
public:
    PanelWithLongTexts() : Panel(data()) {}

    static StoreData data() {
        StoreData data;
        for (int i = 0; i < 8; ++i) {
            data.clips.append(clip(QString(1 << 19, u'a'), Seconds(60)));
        }
        data.clips.append(clip(u"found"_s, Seconds(60)));
        return data;
    }
};

TEST_F(PanelWithLongTexts, returnWaitsForTheSearch) {
    openByKey();
    pressKeys(u"f o u Return"_s);
    EXPECT_EQ(pasteboardText(), u"found"_s);
}

class PanelWithImages : public Panel {
public:
    PanelWithImages() : Panel(data()) {
        QImage green(40, 40, QImage::Format_RGB32);
        green.fill(Qt::green);
        EXPECT_TRUE(green.save(world.store.imagePath(u"there.png"_s)));
    }

    // Qt frees the texture of a hidden picture only with the next frame.
    ~PanelWithImages() override {
        close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        view.window().releaseResources();
        view.window().grabWindow();
    }

    static StoreData data() {
        StoreData data;
        data.clips = {clip(u"Image"_s, Seconds(1), ClipKind::image),
                      clip(u"Image"_s, Seconds(2), ClipKind::image)};
        data.clips[0].imageFileName = u"there.png"_s;
        data.clips[1].imageFileName = u"missing.png"_s;
        return data;
    }

    QRgb pixelOfTile(const QString& card) {
        const QQuickItem* tile = find(item(card), u"tile"_s);
        return view.window().grabWindow().pixel(tile->mapToScene({3, 14}).toPoint());
    }
};

TEST_F(PanelWithImages, showsADecodedImageOrASymbol) {
    open();
    EXPECT_TRUE(eventually([this] { return pixelOfTile(u"card0"_s) == QColor(Qt::green).rgb(); }));
    EXPECT_FALSE(find(item(u"card0"_s), u"symbol"_s)->isVisible());
    EXPECT_TRUE(find(item(u"card1"_s), u"symbol"_s)->isVisible());
    clickOn(u"card0"_s);
    world.scheduler.advance(Seconds(0)); // It is read off the main thread.
    EXPECT_FALSE(world.pasteboard.bytes("image/png"_L1).isEmpty());
}

TEST_F(PanelWithImages, staysOpenIfTheImageIsGone) {
    open();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    world.scheduler.advance(Seconds(0)); // It is read off the main thread.
    EXPECT_EQ(toast(), u"The image cannot be read"_s);
    EXPECT_TRUE(world.controller.isOpen());
}

} // namespace

} // namespace ravelo
