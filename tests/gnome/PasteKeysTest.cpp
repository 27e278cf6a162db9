// When keys are typed on GNOME, with a stand-in for the shell and a keyboard that only records.

#include "FakeShell.h"
#include "freedesktop/PrivateBus.h"
#include "platform/RemoteKeyboard.h"
#include "platform/gnome/GnomeDisplayServer.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

namespace ravelo::gnome {

using namespace Qt::StringLiterals;

namespace {

class FakeKeyboard final : public RemoteKeyboard {
public:
    [[nodiscard]] TypingPermission permission() const override { return allowed; }

    [[nodiscard]] Handle onPermissionChange(std::function<void()> /*callback*/) override {
        return {};
    }

    void forgetRefusal() override {}

    [[nodiscard]] Handle open(std::function<void(bool)> done) override {
        answer = std::move(done);
        return {};
    }

    void type(PasteChord chord, Letters how) override {
        typed.push_back(chord);
        letters = how;
    }

    void close() override { ++closings; }

    TypingPermission allowed = TypingPermission::given;
    std::function<void(bool)> answer; ///< The user's.
    std::vector<PasteChord> typed;
    Letters letters = Letters::byLayout; ///< Of the last one.
    int closings = 0;
};

QJsonObject report(int window, bool focused, bool modifiers = false) {
    return {{u"window"_s, window},
            {u"names"_s, QJsonArray{u"kgx"_s}},
            {u"focused"_s, focused},
            {u"layout"_s, u"us"_s},
            {u"modifiers"_s, modifiers}};
}

class PasteKeysTest : public testing::Test {
public:
    void SetUp() override {
        static int worlds = 0; // A name stands for one connection in the whole process.
        const QString number = QString::number(++worlds);
        ASSERT_TRUE(bus.connect(u"typing shell "_s + number).registerService(u"org.gnome.Shell"_s));
        auto created =
            GnomeDisplayServer::create(path, bus.connect(u"typing "_s + number), {200, 12});
        ASSERT_TRUE(created);
        server = std::move(*created);
        server->typeWith(keyboard);
        shell.connect();
        ASSERT_TRUE(eventually([&] { return !shell.heard(u"hello"_s).isEmpty(); }));
    }

    PasteKeys& keys() { return *server->pasteKeys(); }

    [[nodiscard]] qsizetype questions() const { return shell.heard(u"keyboard"_s).size(); }

    /// For several looks.
    static void wait() {
        QElapsedTimer since;
        since.start();
        EXPECT_TRUE(eventually([&] { return since.hasExpired(150); }));
    }

    void copy() { server->pasteboard().write({{QStringLiteral("text/plain"), "text"}}); }

    PrivateBus bus;
    QTemporaryDir folder;
    QString path = folder.filePath(u"ravelo-shell/socket"_s);
    FakeKeyboard keyboard;
    std::unique_ptr<GnomeDisplayServer> server;
    FakeShell shell{path};
};

TEST_F(PasteKeysTest, TheTargetIsTheWindowThatGetsTheKeyboardBack) {
    EXPECT_FALSE(keys().target()) << "nobody has said";
    shell.send(R"({"is":"keyboard","serial":0,"window":7,"names":["kgx"],"focused":false,)"
               R"("modifiers":false,"layout":"us"})");
    const auto target = keys().target();
    ASSERT_TRUE(target) << "a key is handled before the event loop has seen the report";
    EXPECT_EQ(target->id, 7U);
    EXPECT_EQ(target->names, QStringList{u"kgx"_s});
    keyboard.allowed = TypingPermission::refused;
    EXPECT_FALSE(keys().target()) << "the user allows no typing";
}

TEST_F(PasteKeysTest, AsksAnewEachTimeWhetherAllIsReady) {
    struct Row {
        const char* what;
        QJsonObject keyboard;
        bool ready;
    };

    const Row rows[] = {
        {"the panel has it still", report(7, false), false},
        {"the target has it", report(7, true), true},
        {"modifiers are held", report(7, true, true), false},
        {"another window has it", report(8, true), false},
    };
    copy();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        shell.keyboard = row.keyboard;
        (void)keys().readiness({7, {}});
        const qsizetype before = questions();
        EXPECT_TRUE(eventually([&] { return questions() > before; }));
        EXPECT_TRUE(eventually([&] {
            return keys().readiness({7, {}}).isComplete() == row.ready;
        }));
    }
}

TEST_F(PasteKeysTest, TypesOnlyOnceTheUserAllowsItAndAllIsReadyAgain) {
    copy();
    shell.keyboard = report(7, true);
    keys().press({7, {}}, PasteChord::controlShiftV);
    wait();
    EXPECT_EQ(keyboard.typed.size(), 0U) << "the user has not answered";
    shell.keyboard = report(9, true); // The desktop's dialog.
    keyboard.answer(true);
    wait();
    EXPECT_EQ(keyboard.typed.size(), 0U) << "the dialog has the keyboard";
    shell.keyboard = report(7, true);
    EXPECT_TRUE(eventually([&] { return !keyboard.typed.empty(); }));
    EXPECT_EQ(keyboard.typed, std::vector{PasteChord::controlShiftV});
    EXPECT_EQ(keyboard.closings, 1);
    const qsizetype before = questions();
    wait();
    EXPECT_EQ(questions(), before) << "it asks on for ever";
}

TEST_F(PasteKeysTest, FindsTheKeyByItsPlaceInLayoutsOfOtherScripts) {
    using Letters = RemoteKeyboard::Letters;
    const std::pair<QString, Letters> rows[] = {
        {u"us"_s, Letters::byLayout},         {u"fr+bepo"_s, Letters::byLayout},
        {u"rs+latin"_s, Letters::byLayout},   {u""_s, Letters::byLayout},
        {u"rs"_s, Letters::byPlace},          {u"ru"_s, Letters::byPlace},
        {u"ru+phonetic"_s, Letters::byPlace},
    };
    copy();
    for (const auto& [layout, letters] : rows) {
        shell.keyboard = report(7, true);
        shell.keyboard[u"layout"_s] = layout;
        keyboard.typed.clear();
        keys().press({7, {}}, PasteChord::controlV);
        keyboard.answer(true);
        EXPECT_TRUE(eventually([&] { return !keyboard.typed.empty(); }));
        EXPECT_EQ(keyboard.letters, letters) << qPrintable(layout);
    }
}

TEST_F(PasteKeysTest, TypesNothingIfItIsNotAllowedOrNotReadyInTime) {
    copy();
    shell.keyboard = report(7, true);
    keys().press({7, {}}, PasteChord::controlV);
    keyboard.answer(false);
    EXPECT_EQ(keyboard.closings, 1) << "refused";

    keys().press({7, {}}, PasteChord::controlV);
    copy();
    keyboard.answer(true);
    EXPECT_TRUE(eventually([&] { return keyboard.closings == 2; })) << "something else was copied";

    shell.keyboard = report(8, true);
    keys().press({7, {}}, PasteChord::controlV);
    keyboard.answer(true);
    EXPECT_TRUE(eventually([&] { return keyboard.closings == 3; })) << "the focus never comes back";

    shell.keyboard = report(7, true);
    shell.answersAboutKeyboard = false;
    keys().press({7, {}}, PasteChord::controlV);
    keyboard.answer(true);
    EXPECT_TRUE(eventually([&] { return keyboard.closings == 4; }))
        << "earlier answers do not count";
    EXPECT_EQ(keyboard.typed, std::vector<PasteChord>());
}

} // namespace
} // namespace ravelo::gnome
