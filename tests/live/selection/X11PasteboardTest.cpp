#include "live/selection/PasteboardFixture.h"

#include <QClipboard>

#include <cstdlib>
#include <semaphore>
#include <utility>

namespace ravelo::x11 {
namespace {

using live::Client;
using live::filling;
using live::offering;
using namespace Qt::StringLiterals;

TEST_F(X11PasteboardTest, readsTextAsUtf8) {
    struct Case {
        const char* name;
        QStringList offers;
        std::optional<QByteArray> text;
    };

    const Case cases[] = {
        {"Latin-1", {offering(u"STRING"_s, "caf\xe9")}, "caf\xc3\xa9"},
        {"UTF-8", {offering(u"UTF8_STRING"_s, "caf\xc3\xa9")}, "caf\xc3\xa9"},
        {"best of many",
         {offering(u"TEXT"_s, "text"), offering(u"STRING"_s, "string"),
          offering(u"text/plain;charset=UTF-8"_s, "mime"), offering(u"text/plain"_s, "plain")},
         "mime"},
        {"MIME that is not UTF-8", {offering(u"text/plain"_s, "caf\xe9")}, "caf\xc3\xa9"},
        {"empty", {offering(u"UTF8_STRING"_s, "")}, ""},
        {"compound text", {offering(u"COMPOUND_TEXT"_s, "\x1b%G\xc3\xa9\x1b%@")}, std::nullopt},
        {"over the limit", {u"UTF8_STRING=fill:%1"_s.arg((8 << 20) + 1)}, std::nullopt}};
    std::unique_ptr<Client> owner;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        owner = own(u"answer"_s, c.offers); // Only then the last one ends, which is no change.
        const auto snapshot = read(plainTextType);
        EXPECT_EQ(snapshot.types.count(plainTextType), 1) << qPrintable(snapshot.types.join(u' '));
        EXPECT_EQ(snapshot.answers.value(plainTextType), c.text);
    }
}

TEST_F(X11PasteboardTest, namesTheOwnersProgram) {
    const auto owner = own(u"answer"_s, {offering(u"STRING"_s, "x")});
    xcb_connection_t* xcb = session_.connection->get();
    const auto name = [&](xcb_window_t window, const char* names, uint32_t size) {
        xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING,
                            8, size, names);
        // Until the server has it: the pasteboard asks on a connection of its own.
        std::free(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    };
    board().setNaming(Pasteboard::Naming::on);
    EXPECT_EQ(read(plainTextType).owner.names, QStringList());
    // Instance and class, each with its end.
    // NOLINTNEXTLINE(bugprone-string-literal-with-embedded-nul)
    name(session_.clipboardOwner(), "keepassxc\0KeePassXC", 20);
    EXPECT_EQ(read(plainTextType).owner.names, QStringList({u"keepassxc"_s, u"KeePassXC"_s}));
}

TEST_F(X11PasteboardTest, readsALargeImageInPieces) {
    const auto owner = own(u"answer"_s, {u"image/png=fill:8388608"_s});
    EXPECT_TRUE(read(u"image/png"_s).answers.value(u"image/png"_s) == filling(8388608))
        << "not the bytes that were offered";
}

TEST_F(X11PasteboardTest, readsNothingIfTheClipboardHasNoOwner) {
    own(u"answer"_s, {offering(u"STRING"_s, "x")}).reset();
    ASSERT_TRUE(eventually([&] { return board().changeCount() == 2; }))
        << "the owner's end is no change";
    EXPECT_EQ(read(plainTextType).types, QStringList());
}

TEST_F(X11PasteboardTest, isOrphanedIfTheOwnersWindowIsDestroyed) {
    const auto owner = own(u"answer"_s, {offering(u"STRING"_s, "x")});
    const qint64 before = board().changeCount();
    xcb_destroy_window(session_.connection->get(), session_.clipboardOwner());
    xcb_flush(session_.connection->get());
    EXPECT_TRUE(eventually([&] { return board().orphaned() == before; }));
}

TEST_F(X11PasteboardTest, isNotDisturbedByAHostileOwner) {
    struct Case {
        QString behaviour;
        bool listsTypes;
        int size = 1 << 20;
        qint64 tooLarge = 0; ///< The size that is reported.
    };

    const Case cases[] = {{u"silent"_s, false},
                          {u"targetsOnly"_s, true},
                          {u"refuse"_s, true},
                          {u"stallsInPieces"_s, true},
                          {u"claimsHuge"_s, true, 1 << 20, 2000000000},
                          {u"claimsSmall"_s, true, 1 << 20, 33 << 18},
                          {u"inOnePiece"_s, true, (8 << 20) + 1, (8 << 20) + 1}};
    std::vector<std::unique_ptr<Client>> owners; // Waiting for their ends would count as a stall.
    for (const Case& c : cases) {
        SCOPED_TRACE(qPrintable(c.behaviour));
        const live::StallGauge gauge;
        owners.push_back(own(c.behaviour, {u"UTF8_STRING=fill:%1"_s.arg(c.size)}));
        const auto snapshot = read(plainTextType);
        EXPECT_EQ(snapshot.types.contains(plainTextType), c.listsTypes);
        EXPECT_EQ(snapshot.answers.value(plainTextType), std::nullopt);
        EXPECT_EQ(snapshot.tooLarge.value(plainTextType), c.tooLarge);

        // A second reading is under way while the next program copies.
        std::optional<PasteboardSnapshot> overtaken;
        const Handle reading = ask(plainTextType, overtaken);
        owners.push_back(own(u"answer"_s, {offering(u"UTF8_STRING"_s, "next")}));
        QElapsedTimer sinceCopy;
        sinceCopy.start();
        EXPECT_EQ(readText(), QByteArray("next"));
        EXPECT_LT(sinceCopy.elapsed(), 1000) << "waited for the owner before";
        EXPECT_LE(gauge.longestStallMs(), 50);
    }
}

TEST_F(X11PasteboardTest, survivesAnOwnerThatDiesDuringARead) {
    const live::StallGauge gauge;
    const auto dying = own(u"dieAfterTargets"_s, {offering(u"UTF8_STRING"_s, "last words")});
    const qint64 before = board().changeCount();
    std::optional<PasteboardSnapshot> result;
    const Handle reading = ask(plainTextType, result);
    EXPECT_TRUE(eventually([&] { return board().changeCount() == before + 1; }))
        << "the owner's death is no change";
    const auto owner = own(u"answer"_s, {offering(u"UTF8_STRING"_s, "next")});
    EXPECT_EQ(readText(), QByteArray("next"));
    EXPECT_FALSE(result) << "answered for an owner that is gone";
    EXPECT_LE(gauge.longestStallMs(), 50);
}

TEST_F(X11PasteboardTest, ignoresALateAnswerOfAnEarlierOwner) {
    const auto late = own(u"late"_s, {offering(u"UTF8_STRING"_s, "stale")});
    std::optional<PasteboardSnapshot> overtaken;
    const Handle reading = ask(plainTextType, overtaken);
    for (int round = 0; round < 3; ++round) {
        auto owner = own(u"answer"_s, {offering(u"UTF8_STRING"_s, "fresh")});
        EXPECT_EQ(readText(), QByteArray("fresh"));
        const qint64 before = board().changeCount();
        owner.reset(); // Its end must not pass for the next owner's coming.
        EXPECT_TRUE(eventually([&] { return board().changeCount() != before; }));
    }
    EXPECT_FALSE(overtaken);
}

TEST_F(X11PasteboardTest, readsEveryCopyOfAQuickSeries) {
    constexpr int copies = 20;
    QList<QByteArray> got;
    Handle reading;
    const Handle listening = board().onChange([&] {
        reading = board().read(
            [](const PasteboardSnapshot& snapshot) {
                return snapshot.answers.isEmpty() ? QString(plainTextType) : QString();
            },
            [&](const PasteboardSnapshot& snapshot) {
                got.append(snapshot.answers.value(plainTextType).value_or("nothing"));
            });
    });
    const auto owner = own(u"answer"_s, {offering(u"UTF8_STRING"_s, "copy")});
    QList<QByteArray> expected = {"copy"};
    for (int copy = 2; copy <= copies; ++copy) {
        expected.append("copy" + QByteArray::number(copy));
    }
    QTimer next;
    next.callOnTimeout([&, copy = 1]() mutable {
        owner->poke();
        if (++copy == copies) {
            next.stop();
        }
    });
    next.start(25);
    EXPECT_TRUE(eventually([&] { return got.size() >= copies; })) << got.size() << " arrived";
    EXPECT_EQ(got, expected);
}

TEST_F(X11PasteboardTest, servesExactBytes) {
    const QList<PasteboardEntry> forms = {
        {u"image/png"_s, filling(3 << 20)},
        {u"text/uri-list"_s, "file:///tmp/%5Ba%5D%2520%23%3F%C3%BC%FC%0A\r\n"},
        {u"x-special/gnome-copied-files"_s, "copy\nfile:///tmp/a"},
        {plainTextType, "words"}};
    board().write(forms);
    for (const PasteboardEntry& form : forms) {
        Client xclip(u"xclip"_s, {u"-o"_s, u"-selection"_s, u"clipboard"_s, u"-t"_s, form.type});
        EXPECT_TRUE(xclip.finish() == form.bytes) << qPrintable(form.type);
    }
    for (const QString& target : {u"UTF8_STRING"_s, u"STRING"_s}) {
        Client text(u"xclip"_s, {u"-o"_s, u"-selection"_s, u"clipboard"_s, u"-t"_s, target});
        EXPECT_EQ(text.finish(), "words") << qPrintable(target);
    }
}

TEST_F(X11PasteboardTest, keepsTextFieldsFromReadingEveryCopy) {
    const live::NoticesOfQt noticesOfQt(*session_.connection);
    int signalsSeen = 0; // At each of these an open text field reads, and waits for the owner.
    const auto watching = QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged,
                                           [&] { ++signalsSeen; });
    const auto owner = own(u"silent"_s, {});
    EXPECT_TRUE(eventually([&] { return noticesOfQt.count() > 0; })) << "Qt is not notified";
    EXPECT_EQ(signalsSeen, 0);
    QObject::disconnect(watching);
}

/// Another client in this process, so that nothing comes between its copy and ours.
class NearbyClient {
public:
    explicit NearbyClient(Connection& connection)
        : connection_(connection),
          noticesOfQt_(connection),
          window_(xcb_generate_id(connection.get())) {
        xcb_create_window(connection.get(), 0, window_, connection.root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    }

    void copy(const QByteArray& selection, xcb_timestamp_t time) {
        auto* xcb = connection_.get();
        xcb_set_selection_owner(xcb, window_, connection_.atom(selection), time);
        const Owned<xcb_get_input_focus_reply_t> done(
            xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    }

    /// A time of the server that Qt has seen pass.
    [[nodiscard]] xcb_timestamp_t pastTime() {
        const auto hear = [this] {
            const int before = noticesOfQt_.count();
            copy("PRIMARY", XCB_CURRENT_TIME);
            EXPECT_TRUE(eventually([&] { return noticesOfQt_.count() != before; }));
            return noticesOfQt_.time();
        };
        const auto time = hear();
        static_cast<void>(hear());
        return time;
    }

private:
    Connection& connection_;
    live::NoticesOfQt noticesOfQt_;
    xcb_window_t window_;
};

/// Keeps the listener from hearing anything, as a busy machine might.
class DeafListener {
public:
    explicit DeafListener(Listener& listener) {
        listener.post([hold = hold_] { hold->acquire(); });
    }

    ~DeafListener() { hold_->release(); }

    DeafListener(const DeafListener&) = delete;
    DeafListener& operator=(const DeafListener&) = delete;

private:
    std::shared_ptr<std::binary_semaphore> hold_ = std::make_shared<std::binary_semaphore>(0);
};

TEST_F(X11PasteboardTest, ignoresACopyFromJustBeforeItsOwnWrite) {
    NearbyClient other(*session_.connection);
    const auto time = other.pastTime();
    std::optional<qint64> count;
    {
        const DeafListener deaf(*session_.listener);
        other.copy("CLIPBOARD", time);
        board().write({{plainTextType, "ours"}});
        count = board().changeCount();
    }
    EXPECT_EQ(readText(), QByteArray("ours"));
    EXPECT_EQ(board().changeCount(), count) << "the earlier copy was counted after ours";
}

TEST_F(X11PasteboardTest, doesNotAdoptIfAnotherProgramWasFaster) {
    NearbyClient other(*session_.connection);
    own(u"answer"_s, {offering(u"STRING"_s, "x")}).reset();
    ASSERT_TRUE(eventually([&] { return board().orphaned().has_value(); }));
    const qint64 before = board().changeCount();
    {
        const DeafListener deaf(*session_.listener);
        other.copy("CLIPBOARD", XCB_CURRENT_TIME);
        EXPECT_TRUE(board().orphaned()) << "already notified, so this proves nothing";
        EXPECT_FALSE(board().adopt({{plainTextType, "ours"}}));
    }
    EXPECT_TRUE(eventually([&] { return board().changeCount() == before + 1; }))
        << "the quicker one's copy is no change";
}

TEST_F(X11PasteboardTest, distinguishesProgramsFromManagers) {
    NearbyClient program(*session_.connection);
    program.copy("CLIPBOARD", XCB_CURRENT_TIME);
    ASSERT_TRUE(eventually([&] { return board().changeCount() == 1; }));
    const auto first = read(plainTextType);
    const auto owner = own(u"answer"_s, {offering(u"STRING"_s, "x")});
    const auto second = read(plainTextType);
    EXPECT_NE(first.owner.id, second.owner.id);
    EXPECT_EQ(second.changeCount, board().changeCount());
    EXPECT_FALSE(second.lastEnd) << "no owner has ended";

    program.copy("CLIPBOARD_MANAGER", XCB_CURRENT_TIME);
    program.copy("CLIPBOARD", XCB_CURRENT_TIME);
    ASSERT_TRUE(eventually([&] { return board().changeCount() == 3; }));
    const auto third = read(plainTextType);
    EXPECT_EQ(third.owner.id, first.owner.id);
    EXPECT_EQ(third.owner.kind, PasteboardOwner::Kind::manager);
    EXPECT_EQ(first.owner.kind, PasteboardOwner::Kind::program);

    own(u"answer"_s, {offering(u"STRING"_s, "y")}).reset();
    ASSERT_TRUE(eventually([&] { return board().changeCount() == 5; }));
    const auto next = own(u"answer"_s, {offering(u"STRING"_s, "y")});
    const auto last = read(plainTextType);
    ASSERT_TRUE(last.lastEnd);
    EXPECT_EQ(last.lastEnd->changeCount, 4);
    EXPECT_LT(last.lastEnd->before, Seconds(60));
}

TEST_F(X11PasteboardTest, reportsACopyFromJustAfterItsOwnWrite) {
    NearbyClient other(*session_.connection);
    int calls = 0;
    const Handle listening = board().onChange([&] { ++calls; });
    qint64 count = 0;
    {
        const DeafListener deaf(*session_.listener);
        board().write({{plainTextType, "ours"}});
        count = board().changeCount();
        other.copy("CLIPBOARD", XCB_CURRENT_TIME);
    }
    EXPECT_TRUE(eventually([&] { return calls == 1; })) << "the later copy was missed";
    EXPECT_EQ(board().changeCount(), count + 1);
}

} // namespace
} // namespace ravelo::x11
