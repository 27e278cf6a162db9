#include "ui/clips/LinkOpening.h"
#include "panel_fixture/PanelFixture.h"

namespace ravelo {

namespace {

enum class Done { nothing, opened, asked, refused, missing };

TEST(LinkOpening, opensHarmlessLinksAndAsksOrRefusesOtherwise) {
    struct Case {
        QString text;
        ClipKind kind;
        Done done;
    };

    const Case cases[] = {
        {u" http://a.example/x "_s, ClipKind::url, Done::opened},
        {u"HTTPS://a.example"_s, ClipKind::url, Done::opened},
        {u"mailto:ren@a.example"_s, ClipKind::text, Done::opened},
        {u"mailto: is a scheme"_s, ClipKind::text, Done::nothing},
        {u"zoommtg://join?x=1"_s, ClipKind::url, Done::asked},
        {u"file:///nowhere/x.desktop"_s, ClipKind::url, Done::missing},
        {u" /nowhere/at all "_s, ClipKind::text, Done::missing},
        {u"/etc/hostname"_s, ClipKind::text, Done::asked},
        {u"file:///etc/hostname"_s, ClipKind::url, Done::asked},
        {u"/etc/hostname\n/etc/hosts"_s, ClipKind::text, Done::nothing},
        {u"javascript:alert(1)"_s, ClipKind::text, Done::refused},
        {u"JavaScript://a.example/%0aalert(1)"_s, ClipKind::url, Done::refused},
        {u"data:text/html,<script></script>"_s, ClipKind::text, Done::refused},
        {u"vbscript:msgbox"_s, ClipKind::text, Done::refused},
        {u"one:two"_s, ClipKind::text, Done::nothing},
        {u"https://a.example"_s, ClipKind::image, Done::nothing},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(qPrintable(c.text));
        ManualScheduler scheduler;
        FakeFileOpener opener;
        Toast toast(scheduler);
        FakeDetachedJobs jobs(scheduler);
        LinkOpening links(opener, jobs, scheduler, toast);
        QString asked;
        QObject::connect(&links, &LinkOpening::asked, &links,
                         [&](const QString& question) { asked = question; });
        links.open(clip(c.text, Seconds(1), c.kind));
        const bool refused = c.done == Done::refused;
        EXPECT_EQ(toast.text(), refused ? u"Not opened"_s : QString()) << "at once";
        scheduler.advance(Seconds(0));
        EXPECT_EQ(opener.opened,
                  c.done == Done::opened ? QList{QUrl(c.text.trimmed())} : QList<QUrl>());
        EXPECT_EQ(toast.text() == u"Not there any more"_s, c.done == Done::missing);
        opener.answer(u"Door"_s);
        EXPECT_EQ(asked, c.done == Done::asked ? u"Open with Door?"_s : QString());
    }
}

TEST(LinkOpening, reportsThatNothingOpensIt) {
    ManualScheduler scheduler;
    FakeFileOpener opener;
    Toast toast(scheduler);
    FakeDetachedJobs jobs(scheduler);
    LinkOpening links(opener, jobs, scheduler, toast);
    const ClipItem link = clip(u"gopher://a.example"_s, Seconds(1), ClipKind::url);
    links.open(link);
    opener.answer({});
    EXPECT_EQ(toast.text(), u"No program opens gopher links"_s);
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
        press(Qt::Key_Return, Qt::ControlModifier);
        world.opener.answer(u"  Zoom\nWorkplace "_s);
        EXPECT_EQ(text(u"linkQuestion"_s), u"Open with Zoom Workplace?"_s);
    }
};

TEST_F(LinkQuestion, returnMeansNo) {
    openByKey();
    ask();
    press(Qt::Key_Return);
    EXPECT_TRUE(eventually([this] { return shown(u"linkQuestion"_s) == nullptr; }));
    EXPECT_TRUE(world.opener.opened.isEmpty());
    EXPECT_TRUE(world.controller.isOpen());
    ask();
    clickIn(u"linkQuestion"_s, u"yes"_s);
    EXPECT_EQ(world.opener.opened, QList<QUrl>{QUrl(u"zoommtg://join"_s)});
    EXPECT_FALSE(world.controller.isOpen());
}

} // namespace

} // namespace ravelo
