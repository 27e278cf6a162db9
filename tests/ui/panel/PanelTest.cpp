#include "panel_fixture/PanelFixture.h"
#include "ui/panel/PanelPicture.h"

namespace ravelo {

namespace {

TEST_F(Panel, showsAHandleUntilItOpens) {
    EXPECT_NE(shown(u"handle"_s), nullptr);
    EXPECT_EQ(shown(u"panel"_s), nullptr);
    open();
    EXPECT_EQ(shown(u"handle"_s), nullptr);
    EXPECT_EQ(item(u"panel"_s)->size(), QSizeF(927, 560));
}

TEST_F(Panel, hasItsNextContentReadySoonAfterItCloses) {
    EXPECT_TRUE(view.features().state.hasContent());
    open();
    close();
    EXPECT_FALSE(view.features().state.hasContent());
    world.scheduler.advance(untilBuilt);
    EXPECT_TRUE(view.features().state.hasContent());
    EXPECT_EQ(view.features().state.contentSize(), QSizeF(927, 560));
    EXPECT_EQ(find(view.window().contentItem(), u"panel"_s)->size(), QSizeF(927, 560))
        << "hidden content must not need a new layout at the opening";
}

/// Counts its first pictures, and nothing else.
class PicturedWindow final : public PanelWindow {
public:
    explicit PicturedWindow(bool canShow) : canShow_(canShow) {}

    bool setFirstPicture(const QImage& picture) override {
        hasPicture = canShow_ && !picture.isNull();
        pictures += picture.isNull() ? 0 : 1;
        return canShow_;
    }

    void place(const Screen& /*screen*/, QSizeF /*size*/) override {}

    void orderFront() override {}

    void orderOut() override {}

    void setOutline(const QPainterPath& /*outline*/) override {}

    [[nodiscard]] ShowThrough showThrough() const override { return ShowThrough::sharp; }

    [[nodiscard]] Handle onShowThroughChange(std::function<void()> /*callback*/) override {
        return {};
    }

    [[nodiscard]] bool isUnderPointer() const override { return false; }

    [[nodiscard]] Handle onUnderPointerChange(std::function<void()> /*callback*/) override {
        return {};
    }

    [[nodiscard]] std::shared_ptr<DragOffer> dragOffer() override { return nullptr; }

    void requestFocus(const QByteArray& /*token*/) override {}

    void returnFocus() override {}

    int pictures = 0;
    bool hasPicture = false;

private:
    bool canShow_;
};

class PanelPictures : public Panel, public testing::WithParamInterface<bool> {};

TEST_P(PanelPictures, areMadeWhileTheWindowIsVisibleAndCanShowThem) {
    PicturedWindow window(GetParam());
    PanelPicture picture({view.window(), window, world.controller, view.features().state,
                          *view.features().clips->list(), view.features().usage, world.scheduler});
    const auto pictures = [&](int expected) {
        world.scheduler.advance(Seconds(0.31));
        return eventually([&] { return window.pictures == expected; });
    };
    EXPECT_TRUE(pictures(1));
    EXPECT_EQ(window.hasPicture, GetParam());
    view.window().hide(); // Qt would complain about a picture now, and fail this test.
    picture.refreshSoon();
    world.scheduler.advance(Seconds(0.31));
    EXPECT_FALSE(window.hasPicture) << "it is outdated, or the screen is locked";
    EXPECT_FALSE(view.features().state.isPictured());
    view.window().show();
    EXPECT_TRUE(pictures(GetParam() ? 2 : 1));
    EXPECT_EQ(view.features().state.isPictured(), GetParam());
    picture.refreshSoon();
    EXPECT_TRUE(pictures(GetParam() ? 3 : 1));

    plan.write({UsageWindow{64, {}}, std::nullopt});
    world.scheduler.advance(Seconds(5));
    EXPECT_EQ(plan.usage.session()->pct, 64);
    picture.refreshSoon();
    world.scheduler.advance(Seconds(0.31));
    EXPECT_EQ(view.features().usage.session().percent == u"64%"_s, GetParam())
        << "a picture shows the current usage";
}

INSTANTIATE_TEST_SUITE_P(OfWindows, PanelPictures, testing::Bool());

TEST_F(Panel, opensAlsoBeforeItsContentIsBuilt) {
    open();
    close();
    open();
    EXPECT_NE(shown(u"card0"_s), nullptr);
}

TEST_F(Panel, updatesDatesAtTheOpening) {
    open();
    rebuild();
    view.window().grabWindow(); // Creates the hidden rows.
    world.scheduler.advance(Seconds(3 * 3600));
    open();
    EXPECT_EQ(find(item(u"card0"_s), u"subtitle"_s)->property("text"), u"3 hr. ago"_s);
}

TEST_F(Panel, updatesDatesWhileItIsOpen) {
    const auto age = [this] {
        return find(item(u"card0"_s), u"subtitle"_s)->property("text").toString();
    };
    world.scheduler.advance(Seconds(10));
    const int atRest = world.scheduler.pending();
    open();
    EXPECT_EQ(age(), u"1 min. ago"_s);
    world.scheduler.advance(Seconds(60));
    EXPECT_EQ(age(), u"2 min. ago"_s);
    world.store.addClip(u"new"_s);
    world.scheduler.advance(Seconds(5));
    EXPECT_EQ(age(), u"5 sec. ago"_s);
    world.scheduler.advance(Seconds(3596));
    EXPECT_EQ(age(), u"1 hr. ago"_s);
    close();
    world.scheduler.advance(Seconds(10));
    EXPECT_EQ(world.scheduler.pending(), atRest) << "they are not visible";
}

TEST_F(Panel, showsPlanUsage) {
    const auto percents = [this] {
        return property(u"usageSession"_s, u"percent"_s, "text").toString() + u' ' +
               property(u"usageWeek"_s, u"percent"_s, "text").toString();
    };
    const auto spend = [this](const PlanWindows& windows) {
        plan.write(windows);
        world.scheduler.advance(Seconds(5));
    };
    spend({UsageWindow{41.5, {}}, {}});
    open();
    EXPECT_EQ(percents(), u"42% \u2014"_s);
    spend({UsageWindow{43, {}}, UsageWindow{130, {}}});
    EXPECT_EQ(percents(), u"43% 130%"_s);

    const auto pace = [this] {
        return property(u"usageSession"_s, u"pace"_s, "text").toString();
    };
    EXPECT_EQ(pace(), QString()) << "too little is known";
    spend({UsageWindow{90, Date{world.scheduler.now().sinceReference + 3 * 3600}}, {}});
    EXPECT_TRUE(pace().startsWith(u"at this pace full at "_s)) << qPrintable(pace());
    const QQuickItem* row = item(u"usageSession"_s);
    send(view.window(), QEvent::MouseMove, row->mapToScene({20, 5}));
    QStringList lines;
    for (const QQuickItem* column : item(u"tooltip"_s)->childItems()) {
        for (const QQuickItem* label : column->childItems()) {
            lines += label->property("text").toString();
        }
    }
    const QString all = lines.join(u'|');
    for (const QString& part :
         {u"Plan usage \u2014 updates while Claude Code is active"_s, u"At this pace full at "_s,
          u"before the reset"_s, u"Last hour: +"_s, u"read "_s}) {
        EXPECT_TRUE(all.contains(part)) << qPrintable(all);
    }
}

TEST_F(Panel, isResetAtEachOpening) {
    openSearch();
    type(u"second"_s);
    clickOn(u"trash"_s);
    rebuild();
    open();
    EXPECT_EQ(text(u"searchInput"_s), QString());
    EXPECT_EQ(shown(u"clearQuestion"_s), nullptr);
    EXPECT_NE(shown(u"card2"_s), nullptr);
}

TEST_F(Panel, controlTabGoesThroughTheTabs) {
    world.controller.toggle();
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(world.settings.lastTab(), u"Notes"_s);
    type(u"!"_s);
    EXPECT_TRUE(world.store.note().contains(u'!')) << "the note has the keyboard";
    press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(world.settings.lastTab(), u"Clipboard"_s);
    press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(world.settings.lastTab(), u"Shelf"_s);
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(world.settings.lastTab(), u"Clipboard"_s);
}

TEST_F(Panel, opensItsLastTabAgain) {
    for (const auto& [lastTab, shows] : {std::pair(u"Clipboard"_s, u"list"_s),
                                         {u"Notes"_s, u"noteInput"_s},
                                         {u"Shelf"_s, u"dropCard"_s},
                                         {QString(), u"list"_s},
                                         {u"Sketches"_s, u"list"_s}}) {
        openTab(lastTab);
        EXPECT_NE(shown(shows), nullptr) << qPrintable(lastTab);
    }
}

TEST_F(Panel, savesTheNoteAtEveryKey) {
    open();
    clickOn(u"tab1"_s);
    EXPECT_EQ(world.settings.lastTab(), u"Notes"_s);
    clickOn(u"noteInput"_s);
    EXPECT_TRUE(world.window.focused);
    press(Qt::Key_End, Qt::ControlModifier);
    type(u"!"_s);
    EXPECT_EQ(world.store.note(), u"remember!"_s);
    world.scheduler.advance(Seconds(0.5));
    QFile file(world.store.fileURL());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(decodeStore(file.readAll()).value_or(StoreData()).note, u"remember!"_s);
}

TEST_F(Panel, startsTheNightShiftAtOnceAndAsksBeforeShuttingDown) {
    open();
    EXPECT_EQ(item(u"nightShift"_s)->property("tip").toString(),
              u"Turno da noite — apaga a tela em ~5s e trabalha no pendente"_s);
    EXPECT_EQ(item(u"power"_s)->property("tip").toString(), u"Shut down the Mac"_s);
    clickOn(u"nightShift"_s);
    clickOn(u"nightShift"_s);
    EXPECT_EQ(world.nightShift.starts, 2);
    clickOn(u"power"_s);
    EXPECT_EQ(text(u"powerQuestion"_s), u"Shut down the Mac?"_s);
    EXPECT_TRUE(in(u"powerQuestion"_s, u"no"_s)->hasActiveFocus());
    press(Qt::Key_Return);
    EXPECT_TRUE(eventually([this] { return shown(u"powerQuestion"_s) == nullptr; }));
    EXPECT_EQ(world.shutDown.requests, 0);
    clickOn(u"power"_s);
    clickIn(u"powerQuestion"_s, u"yes"_s);
    EXPECT_EQ(world.shutDown.requests, 1);
    EXPECT_TRUE(eventually([this] { return shown(u"powerQuestion"_s) == nullptr; }));
}

TEST_F(Panel, explainsAButtonThatIsPointedAt) {
    open();
    const QQuickItem* button = item(u"power"_s);
    send(view.window(), QEvent::MouseMove, button->mapToScene(button->boundingRect().center()));
    EXPECT_GT(item(u"tooltip"_s)->y(), button->mapToScene({0, button->height()}).y());
    send(view.window(), QEvent::MouseMove, {460, 500});
    EXPECT_TRUE(eventually([this] { return shown(u"tooltip"_s) == nullptr; }));
}

} // namespace

} // namespace ravelo
