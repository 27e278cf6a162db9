#include "live/window/PanelFixture.h"
#include "platform/x11/keys/X11GlobalShortcut.h"

namespace ravelo::live {
namespace {

using namespace Qt::StringLiterals;

class GlobalShortcutTest : public PanelFixture {
public:
    using State = GlobalShortcut::State;

    static void key(const char* name) {
        EXPECT_TRUE(run(u"xdotool"_s, {u"key"_s, QString::fromLatin1(name)}));
    }

    /// How often it is pressed by these keys.
    int pressesBy(const char* name) {
        const int before = presses;
        key(name);
        key("F9"); // Its press comes after the others.
        EXPECT_TRUE(eventually([&] { return marks > 0; }));
        marks = 0;
        return presses - before;
    }

    x11::X11GlobalShortcut shortcut{*connection, events};
    x11::X11GlobalShortcut mark{*connection, events};
    int presses = 0;
    int marks = 0;
    Handle counting = shortcut.onPress([this](const QByteArray&) { ++presses; });
    Handle marking = mark.onPress([this](const QByteArray&) { ++marks; });

    void SetUp() override {
        mark.set(KeyCombination::fromText(u"F9"_s));
        ASSERT_EQ(mark.state(), State::registered);
    }
};

TEST_F(GlobalShortcutTest, IsPressedWhateverTheLocksAre) {
    EXPECT_EQ(pressesBy("super+v"), 0);
    shortcut.set(KeyCombination::fromText(u"Super+V"_s));
    ASSERT_EQ(shortcut.state(), State::registered);
    EXPECT_EQ(pressesBy("super+v"), 1);
    EXPECT_EQ(pressesBy("super+shift+v"), 0);
    EXPECT_EQ(pressesBy("v"), 0);
    for (const char* lock : {"Caps_Lock", "Num_Lock"}) {
        key(lock);
        EXPECT_EQ(pressesBy("super+v"), 1) << lock;
        key(lock);
    }
    {
        const Handle recording = shortcut.suspend();
        EXPECT_EQ(pressesBy("super+v"), 0) << "while others are recorded";
        shortcut.set(KeyCombination::fromText(u"Ctrl+Alt+7"_s));
    }
    EXPECT_EQ(pressesBy("super+v"), 0) << "others have been recorded";
    EXPECT_EQ(pressesBy("ctrl+alt+7"), 1);
    shortcut.set(std::nullopt);
    EXPECT_EQ(pressesBy("ctrl+alt+7"), 0);
    EXPECT_EQ(shortcut.state(), State::none);
}

TEST_F(GlobalShortcutTest, AHeldKeyCountsOnce) {
    shortcut.set(KeyCombination::fromText(u"Super+V"_s));
    EXPECT_TRUE(run(u"xset"_s, {u"r"_s, u"rate"_s, u"60"_s, u"60"_s}));
    EXPECT_TRUE(run(u"xdotool"_s,
                    {u"keydown"_s, u"super+v"_s, u"sleep"_s, u"0.4"_s, u"keyup"_s, u"super+v"_s}));
    EXPECT_EQ(pressesBy("F8"), 1);
}

TEST_F(GlobalShortcutTest, KeysOfAnotherProgramAreTaken) {
    const auto grab = [this](uint16_t modifiers) {
        constexpr xcb_keycode_t v = 55;
        xcb_grab_key(server.get(), 1, server.root(), modifiers, v, XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC);
        static_cast<void>(server.focus()); // At the answer it is done.
    };
    grab(XCB_MOD_MASK_4 | XCB_MOD_MASK_LOCK); // With one of the locks is enough.
    shortcut.set(KeyCombination::fromText(u"Super+V"_s));
    EXPECT_EQ(shortcut.state(), State::taken);
    EXPECT_EQ(pressesBy("super+v"), 0) << "the rest of the grabs has stayed";
    shortcut.set(KeyCombination::fromText(u"Super+B"_s));
    EXPECT_EQ(shortcut.state(), State::registered);
    shortcut.set(KeyCombination::fromText(u"F24"_s));
    EXPECT_EQ(shortcut.state(), State::refused) << "the keyboard has no such key";
}

TEST_F(GlobalShortcutTest, FollowsTheKeyboardsMapping) {
    const auto map = [](const char* expression) {
        EXPECT_TRUE(run(u"xmodmap"_s, {u"-e"_s, QString::fromLatin1(expression)}));
    };
    shortcut.set(KeyCombination::fromText(u"Super+Shift+V"_s));
    ASSERT_EQ(shortcut.state(), State::registered);
    int changes = 0;
    const Handle following = shortcut.onChange([&] { ++changes; });
    map("keycode 94 = F20");
    mark.set(KeyCombination::fromText(u"F20"_s)); // After the change has been seen.
    mark.set(KeyCombination::fromText(u"F9"_s));
    EXPECT_EQ(pressesBy("super+shift+v"), 1);
    EXPECT_EQ(changes, 0) << "none of its keys was moved";
    map("clear mod4");
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::refused; }))
        << "there is no Super";
    EXPECT_EQ(pressesBy("shift+v"), 0) << "a capital V opens the panel";
    map("add mod4 = Super_L");
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::registered; }));
    EXPECT_EQ(pressesBy("super+shift+v"), 1);
}

} // namespace
} // namespace ravelo::live
