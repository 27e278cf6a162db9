#include "ui/LinkOpening.h"
#include "PanelFixture.h"

namespace ravelo {

namespace {

struct LinkCase {
    const char* name;
    QString text;
    ClipKind kind;
    QString opened = {};
    QString asked = {}; ///< With "Door" as the program.
    QString toast = {}; ///< At once.
};

class CtrlReturn : public testing::TestWithParam<LinkCase> {};

TEST_P(CtrlReturn, opensWhatCannotDoHarmAndAsksOrRefusesOtherwise) {
    ManualScheduler scheduler;
    FakeFileOpener opener;
    Toast toast(scheduler);
    LinkOpening links(opener, scheduler, toast);
    QString asked;
    QObject::connect(&links, &LinkOpening::asked, &links,
                     [&](const QString& question) { asked = question; });
    links.open(clip(GetParam().text, Seconds(1), GetParam().kind));
    EXPECT_EQ(QUrl::toStringList(opener.opened).join(u' '), GetParam().opened);
    EXPECT_EQ(toast.text(), GetParam().toast);
    opener.answer(u"Door"_s);
    EXPECT_EQ(asked, GetParam().asked);
}

INSTANTIATE_TEST_SUITE_P(
    All, CtrlReturn,
    testing::Values(
        LinkCase{"http", u" http://a.example/x "_s, ClipKind::url, u"http://a.example/x"_s},
        LinkCase{"httpsInCapitals", u"HTTPS://a.example"_s, ClipKind::url, u"https://a.example"_s},
        LinkCase{"mail", u"mailto:ren@a.example"_s, ClipKind::text, u"mailto:ren@a.example"_s},
        LinkCase{"mailInASentence", u"mailto: is a scheme"_s, ClipKind::text},
        LinkCase{"program", u"zoommtg://join?x=1"_s, ClipKind::url, {}, u"Open with Door?"_s},
        LinkCase{"file", u"file:///home/me/x.desktop"_s, ClipKind::url, {}, u"Open with Door?"_s},
        LinkCase{"script", u"javascript:alert(1)"_s, ClipKind::text, {}, {}, u"Not opened"_s},
        LinkCase{"scriptAsALink",
                 u"JavaScript://a.example/%0aalert(1)"_s,
                 ClipKind::url,
                 {},
                 {},
                 u"Not opened"_s},
        LinkCase{
            "data", u"data:text/html,<script></script>"_s, ClipKind::text, {}, {}, u"Not opened"_s},
        LinkCase{"vbscript", u"vbscript:msgbox"_s, ClipKind::text, {}, {}, u"Not opened"_s},
        LinkCase{"text", u"one:two"_s, ClipKind::text},
        LinkCase{"image", u"https://a.example"_s, ClipKind::image}),
    [](const auto& row) { return row.param.name; });

TEST(LinkOpening, saysSoIfNothingOpensItOrNobodyKnows) {
    ManualScheduler scheduler;
    FakeFileOpener opener;
    Toast toast(scheduler);
    LinkOpening links(opener, scheduler, toast);
    const ClipItem link = clip(u"gopher://a.example"_s, Seconds(1), ClipKind::url);
    links.open(link);
    opener.answer({});
    EXPECT_EQ(toast.text(), u"Nothing here opens gopher links"_s);
    toast.reset();
    links.open(link);
    scheduler.advance(Seconds(2));
    EXPECT_EQ(toast.text(), u"Not opened"_s) << "the disk does not answer";
}

class LinkQuestion : public Panel {
protected:
    LinkQuestion() : Panel(data()) {}

    static StoreData data() {
        StoreData data;
        data.clips = {clip(u"zoommtg://join"_s, Seconds(60), ClipKind::url)};
        return data;
    }

    void ask() {
        press(view.window(), Qt::Key_Return, Qt::ControlModifier);
        world.opener.answer(u"  Zoom\nWorkplace "_s);
        EXPECT_EQ(text(u"linkQuestion"_s), u"Open with Zoom Workplace?"_s);
    }
};

TEST_F(LinkQuestion, returnMeansNo) {
    world.controller.toggle();
    view.window().resize(world.controller.frame().size().toSize());
    view.window().grabWindow();
    ask();
    press(view.window(), Qt::Key_Return);
    EXPECT_TRUE(eventually([this] { return shown(u"linkQuestion"_s) == nullptr; }));
    EXPECT_TRUE(world.opener.opened.isEmpty());
    EXPECT_TRUE(world.controller.isOpen());
    ask();
    const QQuickItem* yes = in(u"linkQuestion"_s, u"yes"_s);
    click(view.window(), yes->mapToScene(yes->boundingRect().center()));
    EXPECT_EQ(world.opener.opened, QList<QUrl>{QUrl(u"zoommtg://join"_s)});
    EXPECT_FALSE(world.controller.isOpen());
}

} // namespace

} // namespace ravelo
