#include "ListenerSession.h"

#include <QGuiApplication>

#include <atomic>
#include <ostream>

namespace ravelo::x11 {
namespace {

using live::Client;
using live::offering;
using namespace Qt::StringLiterals;

struct DragCase {
    const char* name;
    QString behaviour;
    QStringList offers;
    QList<QUrl> files;
    QByteArray key = {};

    friend void PrintTo(const DragCase& tested, std::ostream* out) { *out << tested.name; }
};

class DragOfOther : public testing::TestWithParam<DragCase> {
protected:
    [[nodiscard]] X11DragMonitor& drags() { return session_.drags; }

    live::ListenerSession session_;
};

TEST_P(DragOfOther, isCountedAndAskedForItsFiles) {
    EXPECT_EQ(drags().files(), std::nullopt) << "before any drag";
    int calls = 0;
    const Handle listening = drags().onChange([&] { ++calls; });
    const live::StallGauge gauge;
    Client source(live::selectionOwner(),
                  QStringList{u"XdndSelection"_s, GetParam().behaviour} + GetParam().offers);
    ASSERT_TRUE(eventually([&] { return calls == 1; })) << "not told of the drag";
    EXPECT_EQ(drags().changeCount(), 1);

    EXPECT_EQ(drags().files(), std::nullopt) << "answered before the source was asked";
    ASSERT_TRUE(eventually([&] { return drags().files().has_value(); })) << "no answer";
    EXPECT_EQ(drags().files(), GetParam().files);
    EXPECT_TRUE(eventually([&] { return calls == 2; })) << "not told of the answer";
    EXPECT_EQ(drags().transferKey(), std::nullopt) << "answered before the source was asked";
    EXPECT_TRUE(eventually([&] { return calls == 3; })) << "not told of the key";
    EXPECT_EQ(drags().transferKey(), GetParam().key);
    EXPECT_LE(gauge.longestStallMs(), 50);

    source.poke();
    ASSERT_TRUE(eventually([&] { return calls == 4; })) << "not told of the next drag";
    EXPECT_EQ(drags().changeCount(), 2);
    EXPECT_EQ(drags().files(), std::nullopt) << "the answer of the drag before";
}

INSTANTIATE_TEST_SUITE_P(
    Sources, DragOfOther,
    testing::Values(
        DragCase{"Files",
                 u"answer"_s,
                 {offering(u"text/uri-list"_s,
                           "# two\r\nfile:///tmp/a%20b\r\nhttps://example.org/\r\nfile:///c\r\n")},
                 {QUrl(u"file:///tmp/a%20b"_s), QUrl(u"file:///c"_s)}},
        DragCase{"FilesAndAKey",
                 u"answer"_s,
                 {offering(u"text/uri-list"_s, "file:///c"),
                  offering(u"application/vnd.portal.filetransfer"_s, QByteArray("123\0", 4)),
                  offering(u"application/vnd.portal.files"_s, "older")},
                 {QUrl(u"file:///c"_s)},
                 "123"},
        DragCase{"AnOlderKey",
                 u"answer"_s,
                 {offering(u"application/vnd.portal.files"_s, "4 5")},
                 {},
                 "4 5"},
        DragCase{"AKeyThatIsNone",
                 u"answer"_s,
                 {offering(u"application/vnd.portal.filetransfer"_s, "\xff")},
                 {}},
        DragCase{"Addresses",
                 u"answer"_s,
                 {offering(u"text/uri-list"_s, "https://example.org/\r\n")},
                 {}},
        DragCase{"Text", u"answer"_s, {offering(u"UTF8_STRING"_s, "file:///tmp/a")}, {}},
        DragCase{"Silence", u"silent"_s, {}, {}}),
    [](const auto& tested) { return tested.param.name; });

TEST(SlowSource, isStillHeardWhenTheNextDragHasBegun) {
    live::ListenerSession session;
    const Client slow(live::selectionOwner(),
                      {u"XdndSelection"_s, u"late"_s, offering(u"text/uri-list"_s, "file:///slow"),
                       offering(u"application/vnd.portal.filetransfer"_s, "key")});
    ASSERT_TRUE(eventually([&] { return session.drags.changeCount() == 1; }));
    EXPECT_EQ(session.drags.files(), std::nullopt);
    EXPECT_EQ(session.drags.transferKey(), std::nullopt);
    const auto answers = session.drags.answers();
    std::atomic<bool> asked = false;
    session.listener->post([&] {
        session.listener->catchUp(); // Sends the questions, too.
        asked = true;
    });
    ASSERT_TRUE(eventually([&] { return asked.load(); }));
    const Client next(live::selectionOwner(), {u"XdndSelection"_s, u"answer"_s,
                                               offering(u"text/uri-list"_s, "file:///next")});
    EXPECT_TRUE(eventually([&] { return answers->files && answers->transferKey; }));
    EXPECT_EQ(answers->files, QList{QUrl(u"file:///slow"_s)});
    EXPECT_EQ(answers->transferKey, "key");
    (void)session.drags.files();
    EXPECT_TRUE(eventually([&] { return session.drags.files().has_value(); }));
    EXPECT_EQ(session.drags.files(), QList{QUrl(u"file:///next"_s)});
}

TEST(OwnDrag, isNoDragOfOthers) {
    live::ListenerSession session;
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* qt = x11->connection();
    const auto begin = [&](xcb_connection_t* client) {
        const xcb_window_t window = xcb_generate_id(client);
        xcb_create_window(client, 0, window, session.connection->root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(client, window, session.connection->atom("XdndSelection"),
                                XCB_CURRENT_TIME);
        xcb_flush(client);
        const Owned<xcb_get_input_focus_reply_t> done(
            xcb_get_input_focus_reply(client, xcb_get_input_focus(client), nullptr));
    };
    begin(qt);
    begin(session.connection->get()); // The one that counts, behind it.
    EXPECT_TRUE(eventually([&] { return session.drags.changeCount() > 0; }));
    EXPECT_EQ(session.drags.changeCount(), 1) << "our own drag was counted";
}

} // namespace
} // namespace ravelo::x11
