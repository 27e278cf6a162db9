#include "fakes/PanelWorld.h"
#include "panel/PasteChords.h"

#include <gtest/gtest.h>

namespace ravelo {
namespace {

using namespace Qt::StringLiterals;

class PastingTest : public testing::Test {
public:
    void SetUp() override { world.controller.toggle(); }

    void run() {
        world.pasting.run(world.pasting.target(), [this](const auto& done) {
            openAtCopy = world.controller.isOpen();
            world.controller.copy(u"text"_s);
            done();
        });
    }

    void wait(double seconds) { world.scheduler.advance(Seconds(seconds)); }

    [[nodiscard]] size_t presses() const { return world.pasteKeys.pressed.size(); }

    PanelWorld world;
    bool openAtCopy = false;
};

TEST_F(PastingTest, CopiesClosesReturnsTheFocusAndThenTypes) {
    run();
    EXPECT_TRUE(openAtCopy) << "some desktops let only the program with the keyboard copy";
    EXPECT_EQ(world.pasteboard.bytes(plainTextType), "text");
    EXPECT_FALSE(world.controller.isOpen());
    EXPECT_FALSE(world.window.focused);
    EXPECT_EQ(presses(), 0U) << "before the window has the focus back";
    wait(0.02);
    EXPECT_EQ(world.pasteKeys.pressed,
              (std::vector<FakePasteKeys::Press>{{7, PasteChord::controlV}}));
    wait(5);
    EXPECT_EQ(presses(), 1U) << "once only";
}

TEST_F(PastingTest, WaitsForEachConditionAndGivesUpInTheEnd) {
    using Readiness = PasteKeys::Readiness;
    for (const Readiness missing : {Readiness{false, true, true}, Readiness{true, false, true},
                                    Readiness{true, true, false}}) {
        SCOPED_TRACE(testing::Message()
                     << missing.modifiersUp << missing.ownsPasteboard << missing.focused);
        world.pasteKeys.ready = missing;
        world.controller.toggle();
        run();
        wait(1);
        EXPECT_EQ(presses(), 0U);
        world.pasteKeys.ready = {true, true, true};
        wait(0.02);
        EXPECT_EQ(presses(), 1U) << "it has come true in time";

        world.pasteKeys = {};
        world.pasteKeys.ready = missing;
        world.controller.toggle();
        run();
        wait(2);
        world.pasteKeys.ready = {true, true, true};
        wait(5);
        EXPECT_EQ(presses(), 0U) << "too late: the user is doing something else";
        EXPECT_EQ(world.pasteboard.bytes(plainTextType), "text");
        world.pasteKeys = {};
    }
}

TEST_F(PastingTest, TypesNothingIfNothingWasCopiedOrTheUserGoesOn) {
    // Such as a picture that cannot be read.
    world.pasting.run(world.pasting.target(), [](const auto& done) { done(); });
    wait(5);
    EXPECT_EQ(presses(), 0U) << "it would paste what was copied before";

    run();
    world.controller.toggle();
    wait(5);
    EXPECT_EQ(presses(), 0U) << "the panel is open again";

    run();
    world.lock.setLocked(true);
    wait(5);
    EXPECT_EQ(presses(), 0U) << "into the locker";
    world.lock.setLocked(false);

    world.pasteKeys.next.reset();
    run();
    wait(5);
    EXPECT_EQ(presses(), 0U) << "there is no target";

    world.pasteKeys = {};
    world.pasteKeys.possible = false;
    run();
    wait(5);
    EXPECT_EQ(presses(), 0U) << "the desktop does not allow it";
}

TEST(PasteChords, DependOnTheTerminal) {
    const std::pair<QStringList, std::optional<PasteChord>> cases[] = {
        {{u"xterm"_s, u"XTerm"_s}, PasteChord::shiftInsert},
        {{u"urxvt"_s, u"URxvt"_s}, PasteChord::shiftInsert},
        {{u"gnome-terminal-server"_s, u"Gnome-terminal"_s}, PasteChord::controlShiftV},
        {{u"konsole"_s, u"konsole"_s}, PasteChord::controlShiftV},
        {{u"Alacritty"_s, u"Alacritty"_s}, PasteChord::controlShiftV},
        {{u"org.gnome.Console"_s}, PasteChord::controlShiftV},
        {{u"foot"_s}, PasteChord::controlShiftV},
        {{u"Navigator"_s, u"firefox"_s}, std::nullopt},
        {{u"xterm-like"_s}, std::nullopt},
        {{}, std::nullopt},
    };
    for (const auto& [names, chord] : cases) {
        EXPECT_EQ(terminalChord(names), chord) << qPrintable(names.join(u' '));
    }
}

} // namespace
} // namespace ravelo
