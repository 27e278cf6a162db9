#include "base/KeyCombination.h"

#include <gtest/gtest.h>

namespace ravelo {
namespace {

using namespace Qt::StringLiterals;

TEST(KeyCombination, IsWhatAKeyEventStandsFor) {
    struct Case {
        int key;
        Qt::KeyboardModifiers modifiers;
        quint32 scanCode;
        const char* text; ///< Null if it cannot be a shortcut.
        quint32 keysym = 0;
        const char* keysymName = nullptr;
    };

    const auto super = Qt::MetaModifier;
    const auto shift = Qt::ShiftModifier;
    const Case cases[] = {
        {Qt::Key_V, super, 55, "Super+V", 0x76, "v"},
        {Qt::Key_V, super | Qt::KeypadModifier, 55, "Super+V", 0x76, "v"},
        {Qt::Key_Exclam, super | shift, 10, "Super+Shift+1", 0x31, "1"},
        {Qt::Key_ParenRight, Qt::ControlModifier | shift, 19, "Ctrl+Shift+0", 0x30, "0"},
        {Qt::Key_Backtab, Qt::AltModifier | shift, 23, "Alt+Shift+Tab", 0xff09, "Tab"},
        {Qt::Key_F12, {}, 96, "F12", 0xffc9, "F12"},
        {Qt::Key_QuoteLeft, Qt::ControlModifier | Qt::AltModifier, 49, "Ctrl+Alt+`", 0x60, "grave"},
        {Qt::Key_PageUp, super, 112, "Super+Page Up", 0xff55, "Prior"},
        {Qt::Key_V, {}, 55, nullptr},
        {Qt::Key_V, shift, 55, nullptr},
        {Qt::Key_C, super, 54, "Super+C", 0x63, "c"},
        {Qt::Key_V, Qt::ControlModifier | Qt::AltModifier, 55, "Ctrl+Alt+V", 0x76, "v"},
        {Qt::Key_V, Qt::ControlModifier, 55, nullptr}, // Pastes.
        {Qt::Key_V, Qt::ControlModifier | shift, 55, nullptr},
        {Qt::Key_X, Qt::ControlModifier | Qt::KeypadModifier, 53, nullptr},
        {Qt::Key_Insert, Qt::ControlModifier, 118, nullptr},
        {Qt::Key_Super_L, super, 133, nullptr},
        {Qt::Key_Control, Qt::ControlModifier, 37, nullptr},
        {0x42c, super, 55, nullptr}, // A Cyrillic letter.
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text != nullptr ? c.text : "none");
        const auto keys = KeyCombination::pressed(c.key, c.modifiers, c.scanCode);
        ASSERT_EQ(keys.has_value(), c.text != nullptr) << c.key;
        if (keys) {
            EXPECT_EQ(keys->text(), QLatin1StringView(c.text));
            EXPECT_EQ(keys->keysym(), c.keysym);
            EXPECT_EQ(keys->keysymName(), QLatin1StringView(c.keysymName));
            EXPECT_EQ(KeyCombination::fromText(keys->text()), keys) << "does not come back";
        }
    }
}

TEST(KeyCombination, IsNothingForOtherTexts) {
    for (const char* text : {"", "V", "Shift+V", "Hyper+V", "Super+", "+", "Super+VV", "Super",
                             "Ctrl+V", "Shift+Insert"}) {
        EXPECT_FALSE(KeyCombination::fromText(QString::fromLatin1(text))) << text;
    }
}

} // namespace
} // namespace ravelo
