// The socket and what hangs on it, with a stand-in for the shell on a private bus.

#include "FakeShell.h"
#include "contract/PasteboardContract.h"
#include "fakes/ManualScheduler.h"
#include "freedesktop/PrivateBus.h"
#include "platform/gnome/GnomeDisplayServer.h"

#include <QClipboard>
#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonArray>
#include <QMimeData>
#include <QProcess>
#include <QTemporaryDir>
#include <QWindow>

#include <atomic>
#include <chrono>
#include <thread>

namespace ravelo::gnome {

using namespace Qt::StringLiterals;

namespace {

/// The adapter, and a shell that has or has not the name of one.
class World {
public:
    explicit World(const QString& shellName = u"org.gnome.Shell"_s) {
        static int worlds = 0; // A name stands for one connection in the whole process.
        const QString number = QString::number(++worlds);
        EXPECT_TRUE(bus_.connect(u"shell "_s + number).registerService(shellName));
        auto created =
            GnomeDisplayServer::create(path(), bus_.connect(u"ravelo "_s + number), {200, 12});
        EXPECT_TRUE(created) << (created ? "" : qPrintable(created.error().message));
        server = std::move(*created);
    }

    void attach() {
        shell.connect();
        ASSERT_TRUE(eventually([&] { return !shell.heard(u"hello"_s).isEmpty(); }))
            << "no greeting";
        shell.send(
            R"({"is":"screens","primary":0,"screens":[{"frame":[0,0,1280,800],"free":[0,32,1280,768]}]})");
        ASSERT_TRUE(eventually([&] { return server->screens().main().has_value(); }));
    }

    [[nodiscard]] QString path() const { return folder_.filePath(u"ravelo-shell/socket"_s); }

private:
    PrivateBus bus_;
    QTemporaryDir folder_;

public:
    std::unique_ptr<GnomeDisplayServer> server;
    FakeShell shell{path()};
};

constexpr const char* strangersScript = R"(
import socket, sys
peer = socket.socket(socket.AF_UNIX)
peer.connect(sys.argv[1])
try:
    peer.sendall(b'{"is":"hello","version":1}\n')
    print(peer.recv(100))
except OSError:
    print(b"")
)";

TEST(GnomeChannel, IsForThisUserAlone) {
    const World world;
    EXPECT_EQ(QFileInfo(QFileInfo(world.path()).path()).permissions() &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                   QFile::WriteOther | QFile::ExeOther),
              QFile::Permissions());
}

TEST(GnomeChannel, GreetsTheShellAndNobodyElse) {
    World world;
    world.attach();
    const QJsonObject hello = world.shell.heard(u"hello"_s).value(0);
    EXPECT_EQ(hello[u"version"].toInt(), protocolVersion);
    EXPECT_EQ(hello[u"title"].toString(), u"Ravelo panel");

    World other(u"org.example.Impostor"_s);
    other.shell.connect();
    EXPECT_TRUE(eventually([&] { return other.shell.isDropped(); })) << "it owns no shell's name";
    EXPECT_TRUE(other.shell.heard(u"hello"_s).isEmpty());

    QProcess stranger; // Another process of the same user, while the shell is connected.
    stranger.start(u"/usr/bin/python3"_s,
                   {u"-c"_s, QString::fromLatin1(strangersScript), world.path()});
    EXPECT_TRUE(eventually([&] { return stranger.state() == QProcess::NotRunning; }));
    EXPECT_EQ(stranger.readAllStandardOutput().trimmed(), "b''");
    EXPECT_FALSE(world.shell.isDropped()) << "the stranger took its place";
}

TEST(GnomeChannel, HangsUpOnAnotherVersionAndOnNonsense) {
    World world;
    world.shell.connect(protocolVersion + 1);
    EXPECT_TRUE(eventually([&] { return world.shell.isDropped(); }));
    EXPECT_TRUE(world.shell.heard(u"hello"_s).isEmpty());
    World second;
    second.attach();
    second.shell.send("nonsense");
    EXPECT_TRUE(eventually([&] { return second.shell.isDropped(); }));
}

TEST(GnomeLock, LastsUntilTheExtensionIsBack) {
    World world;
    world.attach();
    SessionLock& lock = *world.server->locks().front();
    world.shell.send(R"({"is":"locked"})");
    EXPECT_TRUE(eventually([&] { return lock.isLocked(); }));
    world.shell.hangUp();
    EXPECT_TRUE(eventually([&] { return !world.server->channel().isUp(); }));
    EXPECT_TRUE(lock.isLocked());
    world.shell.connect();
    EXPECT_TRUE(eventually([&] { return !lock.isLocked(); }));
}

TEST(GnomeZone, OpensAtTheEdgeAndReportsPressesAndDrags) {
    World world;
    QWindow window;
    ManualScheduler scheduler;
    const auto panel = world.server->panelWindow(window);
    const auto zone = world.server->hotZone(scheduler, *panel);
    std::optional<HotZone::Sight> last;
    const Handle sights = zone->onSight([&](const HotZone::Sight& sight) {
        last = sight;
        return HotZone::Report::onChange;
    });
    QList<HotZone::Press> presses;
    const Handle pressed = zone->onPress([&](HotZone::Press press) { presses.append(press); });
    world.attach();
    world.shell.send(R"({"is":"edge","screen":0})");
    ASSERT_TRUE(eventually([&] { return last && last->inZone; }));
    EXPECT_FALSE(last->inDragZone || last->onPanel || last->buttonDown);
    EXPECT_EQ(last->screen, world.server->screens().main());

    DragMonitor& drags = world.server->drags();
    const qint64 before = drags.changeCount();
    world.shell.onWant = [&](const QJsonObject& want) {
        const Pipe pipe = makePipe();
        world.shell.give(want, pipe.out);
        FakeShell::write(pipe.in, "file:///a\r\n");
    };
    world.shell.send(R"({"is":"drag","serial":1,"types":["text/uri-list"]})");
    ASSERT_TRUE(eventually([&] { return drags.changeCount() == before + 1; }));
    scheduler.advance(Seconds(0));
    EXPECT_TRUE(last->inDragZone && last->buttonDown);
    const auto offer = drags.newest();
    EXPECT_TRUE(world.shell.heard(u"want"_s).isEmpty()) << "asked before anybody wants to know";
    EXPECT_EQ(offer->data({u"text/uri-list"_s}), std::nullopt);
    EXPECT_TRUE(eventually([&] { return offer->data({u"text/uri-list"_s}) == "file:///a\r\n"; }));
    EXPECT_EQ(offer->data({u"image/png"_s}), QByteArray()) << "it has none";
    EXPECT_EQ(world.shell.heard(u"want"_s).size(), 1) << "asked once";
    world.shell.send(R"({"is":"dragEnd"})");
    world.shell.send(R"({"is":"press","own":false})");
    world.shell.send(R"({"is":"press","own":true})");
    EXPECT_TRUE(eventually([&] { return presses.size() == 2; }));
    EXPECT_EQ(presses, QList({HotZone::Press::elsewhere, HotZone::Press::onOwnWindow}));
    scheduler.advance(Seconds(0));
    EXPECT_FALSE(last->buttonDown);
}

TEST(GnomePanel, IsShownOnlyWhileThereIsMoreThanTheHandleAndSomebodyToPlaceIt) {
    World world;
    QWindow parent;
    QWindow window(&parent); // Without one, Qt's test platform complains of the size hints.
    const auto panel = world.server->panelWindow(window);
    const Screen screen{u"0"_s, {0, 0, 1280, 800}, {0, 0, 1280, 800}, {}, {}};
    panel->orderFront();
    panel->place(screen, {900, 400});
    EXPECT_FALSE(window.isVisible()) << "without the extension";
    world.attach();
    EXPECT_TRUE(eventually([&] { return window.isVisible(); }));
    EXPECT_EQ(window.size(), QSize(900, 400));
    panel->place(screen, {200, 12});
    EXPECT_FALSE(window.isVisible()) << "the handle";
    panel->place({u"1"_s, {}, {}, {}, {}}, {200, 40});
    EXPECT_TRUE(window.isVisible()) << "the bar";
    EXPECT_TRUE(eventually([&] { return world.shell.heard(u"place"_s).value(1)[u"screen"] == 1; }));
    panel->orderOut();
    EXPECT_FALSE(window.isVisible());
}

TEST(GnomePanel, KnowsThatThePointerIsStillThereAfterADrop) {
    World world;
    QWindow window;
    const auto panel = world.server->panelWindow(window);
    const auto happens = [&](QEvent::Type type) {
        const QMimeData none;
        QDropEvent drop({}, Qt::CopyAction, &none, Qt::NoButton, Qt::NoModifier, type);
        QEvent other(type);
        QCoreApplication::sendEvent(&window, type == QEvent::Drop ? &drop : &other);
        return panel->isUnderPointer();
    };
    EXPECT_TRUE(happens(QEvent::DragEnter));
    EXPECT_FALSE(happens(QEvent::DragLeave));
    EXPECT_TRUE(happens(QEvent::DragEnter));
    EXPECT_TRUE(happens(QEvent::Drop));
    EXPECT_TRUE(happens(QEvent::DragLeave)) << "the end of the drag is not the pointer's";
    EXPECT_FALSE(happens(QEvent::Leave));
    EXPECT_TRUE(happens(QEvent::Enter));
}

// Contents.

/// Programs that copy, as the extension reports them. Our own writes go to Qt's clipboard.
class Host final : public PasteboardHost {
public:
    Host() {
        world_.attach();
        world_.shell.onWant = [this](const QJsonObject& want) {
            answer(want);
        };
        window_.show();
        window_.requestActivate();
        EXPECT_TRUE(ravelo::eventually([] { return QGuiApplication::focusWindow() != nullptr; }));
    }

    [[nodiscard]] Pasteboard& pasteboard() override { return world_.server->pasteboard(); }

    void offer(const QList<PasteboardEntry>& forms) override {
        forms_ = forms;
        QJsonArray types;
        for (const PasteboardEntry& form : forms) {
            types.append(form.type);
        }
        const QJsonObject report{
            {u"is"_s, u"clip"_s}, {u"serial"_s, ++serial_}, {u"types"_s, types}};
        world_.shell.send(QJsonDocument(report).toJson(QJsonDocument::Compact));
    }

    void loseOwner() override { offer({}); }

    void release() override { offer({}); }

    [[nodiscard]] bool keepsOrphans() const override { return true; }

    [[nodiscard]] QByteArray pasted(QLatin1StringView type) override {
        return QGuiApplication::clipboard()->mimeData()->data(type);
    }

    [[nodiscard]] bool eventually(const std::function<bool()>& condition) override {
        return ravelo::eventually(condition);
    }

private:
    void answer(const QJsonObject& want) {
        for (const PasteboardEntry& form : forms_) {
            if (form.type == want[u"type"].toString() && want[u"serial"].toInt() == serial_) {
                const Pipe pipe = makePipe();
                world_.shell.give(want, pipe.out);
                FakeShell::write(pipe.in, form.bytes);
                return;
            }
        }
        world_.shell.refuse(want);
    }

    World world_;
    QWindow window_;
    QList<PasteboardEntry> forms_;
    int serial_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Gnome, PasteboardContract, testing::Values([]() {
                             return std::unique_ptr<PasteboardHost>(new Host);
                         }));

/// Reads the text of a clipboard that the test offers by itself.
class GnomePasteboardTest : public testing::Test {
protected:
    GnomePasteboardTest() {
        world_.attach();
        world_.shell.send(
            R"({"is":"clip","serial":4,"types":["text/plain;charset=utf-8","TEXT"]})");
        EXPECT_TRUE(eventually([&] { return board().changeCount() == 1; }));
    }

    [[nodiscard]] Pasteboard& board() { return world_.server->pasteboard(); }

    [[nodiscard]] Handle read(std::optional<PasteboardSnapshot>& result) {
        return board().read(
            [](const PasteboardSnapshot& known) {
                return known.answers.isEmpty() ? QString(plainTextType) : QString();
            },
            [&result](PasteboardSnapshot snapshot) { result = std::move(snapshot); });
    }

    World world_;
};

TEST_F(GnomePasteboardTest, GivesUpAnOwnerThatHangsAndOneThatGivesTooMuch) {
    const Pipe silent = makePipe();
    world_.shell.onWant = [&](const QJsonObject& want) {
        world_.shell.give(want, silent.out);
    };
    std::optional<PasteboardSnapshot> result;
    const Handle first = read(result);
    EXPECT_TRUE(eventually([&] { return result.has_value(); })) << "waits for ever";
    EXPECT_EQ(result->answers.value(plainTextType), std::nullopt);

    std::thread flood;
    world_.shell.onWant = [&](const QJsonObject& want) {
        EXPECT_EQ(want[u"cap"].toInteger(), 8 << 20);
        flood = std::thread([socket = world_.shell.pour(want)] {
            const QByteArray part(1 << 20, 'x');
            while (::send(socket.number(), part.constData(), std::size_t(part.size()),
                          MSG_NOSIGNAL) > 0) {
            }
        });
    };
    result.reset();
    const Handle second = read(result);
    EXPECT_TRUE(eventually([&] { return result.has_value(); })) << "reads for ever";
    EXPECT_EQ(result->answers.value(plainTextType), std::nullopt);
    EXPECT_GT(result->tooLarge.value(plainTextType), 8 << 20);
    flood.join();
}

TEST_F(GnomePasteboardTest, DeliversWhatWasReadBeforeTheNextCopy) {
    Pipe pipe = makePipe();
    bool isGiven = false;
    world_.shell.onWant = [&](const QJsonObject& want) {
        world_.shell.give(want, pipe.out);
        isGiven = true;
    };
    std::atomic<bool> isRead = false;
    std::optional<PasteboardSnapshot> result;
    const Handle reading = board().read(
        [&](const PasteboardSnapshot& known) {
            isRead = !known.answers.isEmpty();
            return isRead ? QString() : QString(plainTextType);
        },
        [&result](PasteboardSnapshot snapshot) { result = std::move(snapshot); });
    int turns = 0; // Of the event loop, which passes the descriptor on.
    ASSERT_TRUE(eventually([&] { return isGiven && ++turns > 10; }));
    FakeShell::write(pipe.in, "read in time");
    pipe.in = Descriptor();
    for (int wait = 0; wait < 2000 && !isRead; ++wait) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1)); // No event is handled meanwhile.
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    board().write({{QString(plainTextType), "the next"}});
    ASSERT_TRUE(eventually([&] { return result.has_value(); })) << "it is lost";
    EXPECT_EQ(result->answers.value(plainTextType), "read in time");
}

TEST_F(GnomePasteboardTest, TakesNothingGivenForARefusal) {
    world_.shell.onWant = [&](const QJsonObject& want) {
        world_.shell.give(want, makePipe().out);
    };
    std::optional<PasteboardSnapshot> result;
    const Handle reading = read(result);
    EXPECT_TRUE(eventually([&] { return result.has_value(); }));
    EXPECT_EQ(result->answers.value(plainTextType), std::nullopt);
    EXPECT_EQ(world_.shell.heard(u"want"_s).size(), 2) << "asked by the owner's other name, too";
}

TEST_F(GnomePasteboardTest, OffersATextThroughTheShellWithoutTheFocus) {
    ASSERT_EQ(QGuiApplication::focusWindow(), nullptr);
    EXPECT_EQ(board().write({{u"image/png"_s, "png"}, {plainTextType, "Gr\xc3\xbc\xc3\x9f"}}), 2);
    EXPECT_TRUE(eventually([&] { return world_.shell.heard(u"offer"_s).size() == 1; }));
    EXPECT_EQ(world_.shell.heard(u"offer"_s).constFirst()[u"text"].toString(), u"Grüß");
    int calls = 0;
    const Handle listening = board().onChange([&] { ++calls; });
    world_.shell.send(
        R"({"is":"clip","serial":5,"types":["text/plain;charset=utf-8"],"offered":true})");
    world_.shell.send(R"({"is":"clip","serial":6,"types":["text/plain"],"kept":true})");
    EXPECT_TRUE(eventually([&] { return calls == 1; }));
    EXPECT_EQ(board().changeCount(), 3) << "our own write is counted once, the next copy too";
}

TEST_F(GnomePasteboardTest, KeepsTheFocusUntilItsCopyHasArrivedAndOffersItIfItWasRefused) {
    QWindow parent;
    QWindow window(&parent);
    const auto panel = world_.server->panelWindow(window);
    QWindow focused;
    focused.show();
    focused.requestActivate();
    ASSERT_TRUE(eventually([] { return QGuiApplication::focusWindow() != nullptr; }));
    const auto given = [&] {
        return world_.shell.heard(u"focus"_s).size();
    };
    board().write({{plainTextType, "one"}});
    panel->returnFocus();
    world_.server->channel().send(place(3)); // Arrives after everything before it.
    EXPECT_TRUE(eventually([&] {
        return !world_.shell.heard(u"place"_s).isEmpty() &&
               world_.shell.heard(u"place"_s).constLast()[u"screen"] == 3;
    }));
    EXPECT_EQ(given(), 0) << "Mutter may ignore the copy now";
    const QString mark =
        QGuiApplication::clipboard()->mimeData()->formats().filter(u"x-ravelo"_s).value(0);
    world_.shell.send(R"({"is":"clip","serial":5,"types":[")" + mark.toUtf8() + R"("]})");
    EXPECT_TRUE(eventually([&] { return given() == 1; }));
    EXPECT_TRUE(world_.shell.heard(u"offer"_s).isEmpty());

    board().write({{plainTextType, "two"}});
    panel->returnFocus();
    EXPECT_TRUE(eventually([&] { return given() == 2; })) << "keeps the focus for ever";
    EXPECT_EQ(world_.shell.heard(u"offer"_s).value(0)[u"text"], u"two"_s);
}

TEST_F(GnomePasteboardTest, IsNotImpressedByWhatWasThereBefore) {
    world_.shell.send(R"({"is":"clip","serial":9,"types":["text/plain"],"initial":true})");
    world_.shell.send(R"({"is":"look","animations":false,"icons":"x"})");
    const auto motion = world_.server->motion();
    EXPECT_TRUE(eventually([&] { return motion->isReduced(); }));
    EXPECT_EQ(board().changeCount(), 1);
}

} // namespace
} // namespace ravelo::gnome
