#include "live/ListenerSession.h"

#include <QGuiApplication>

#include <atomic>

namespace ravelo::x11 {
namespace {

using live::Client;
using live::offering;
using namespace Qt::StringLiterals;

const QStringList listType{u"text/uri-list"_s};
const QStringList keyTypes{u"application/vnd.portal.filetransfer"_s,
                           u"application/vnd.portal.files"_s};

TEST(DragOfOther, isCountedAndItsFilesAreRead) {
    struct Case {
        const char* name;
        QString behaviour;
        QStringList offers;
        QByteArray list; ///< Of addresses.
        QByteArray key = {};
    };

    const Case cases[] = {
        {"Files",
         u"answer"_s,
         {offering(u"text/uri-list"_s,
                   "# two\r\nfile:///tmp/a%20b\r\nhttps://example.org/\r\nfile:///c\r\n")},
         "# two\r\nfile:///tmp/a%20b\r\nhttps://example.org/\r\nfile:///c\r\n"},
        {"FilesAndAKey",
         u"answer"_s,
         {offering(u"text/uri-list"_s, "file:///c"),
          offering(u"application/vnd.portal.filetransfer"_s, QByteArray("123\0", 4)),
          offering(u"application/vnd.portal.files"_s, "older")},
         "file:///c",
         QByteArray("123\0", 4)},
        {"AnOlderKey",
         u"answer"_s,
         {offering(u"application/vnd.portal.files"_s, "4 5")},
         {},
         "4 5"},
        {"Text", u"answer"_s, {offering(u"UTF8_STRING"_s, "file:///tmp/a")}, {}},
        {"Silence", u"silent"_s, {}, {}}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        live::ListenerSession session;
        X11DragMonitor& drags = session.drags;
        EXPECT_EQ(drags.newest(), nullptr) << "before any drag";
        int calls = 0;
        const Handle listening = drags.onChange([&] { ++calls; });
        const live::StallGauge gauge;
        Client source(live::selectionOwner(),
                      QStringList{u"XdndSelection"_s, c.behaviour} + c.offers);
        ASSERT_TRUE(eventually([&] { return calls == 1; })) << "the drag is not reported";
        EXPECT_EQ(drags.changeCount(), 1);

        const auto offer = drags.newest();
        ASSERT_TRUE(offer);
        EXPECT_EQ(drags.newest(), offer) << "two offers of one drag";
        int answers = 0;
        const Handle answered = offer->onAnswer([&] { ++answers; });
        EXPECT_EQ(offer->data(listType), std::nullopt) << "answered before the source was asked";
        ASSERT_TRUE(eventually([&] { return answers == 1; })) << "the answer is not reported";
        EXPECT_EQ(calls, 2) << "to the monitor's listener";
        EXPECT_EQ(offer->data(listType), c.list);
        EXPECT_EQ(offer->data(keyTypes), std::nullopt) << "answered before the source was asked";
        ASSERT_TRUE(eventually([&] { return answers == 2; })) << "the key is not reported";
        EXPECT_EQ(offer->data(keyTypes), c.key);
        EXPECT_LE(gauge.longestStallMs(), 50);

        source.poke();
        ASSERT_TRUE(eventually([&] { return drags.changeCount() == 2; })) << "no second drag";
        EXPECT_EQ(drags.newest()->data(listType), std::nullopt) << "the last drag's answer";
    }
}

TEST(SlowSource, canAnswerAfterTheNextDragHasBegun) {
    live::ListenerSession session;
    const Client slow(live::selectionOwner(),
                      {u"XdndSelection"_s, u"late"_s, offering(u"text/uri-list"_s, "file:///slow"),
                       offering(u"application/vnd.portal.filetransfer"_s, "key")});
    ASSERT_TRUE(eventually([&] { return session.drags.changeCount() == 1; }));
    const auto offer = session.drags.newest();
    EXPECT_EQ(offer->data(listType), std::nullopt);
    EXPECT_EQ(offer->data(keyTypes), std::nullopt);
    std::atomic<bool> asked = false;
    session.listener->post([&] {
        session.listener->catchUp(); // Sends the questions, too.
        asked = true;
    });
    ASSERT_TRUE(eventually([&] { return asked.load(); }));
    const Client next(live::selectionOwner(), {u"XdndSelection"_s, u"answer"_s,
                                               offering(u"text/uri-list"_s, "file:///next")});
    EXPECT_TRUE(eventually([&] { return offer->data(listType) && offer->data(keyTypes); }));
    EXPECT_EQ(offer->data(listType), "file:///slow");
    EXPECT_EQ(offer->data(keyTypes), "key");
    (void)session.drags.newest()->data(listType);
    EXPECT_TRUE(
        eventually([&] { return session.drags.newest()->data(listType) == "file:///next"; }));
}

TEST(OwnDrag, isNotCounted) {
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
    begin(session.connection->get()); // Counted, after that.
    EXPECT_TRUE(eventually([&] { return session.drags.changeCount() > 0; }));
    EXPECT_EQ(session.drags.changeCount(), 1) << "our own drag was counted";
}

} // namespace
} // namespace ravelo::x11
