#include "base/KeyCombination.h"

#include <algorithm>
#include <array>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

struct NamedKey {
    int key;
    const char* cap;
    const char* keysymName;
    quint32 keysym;
};

constexpr auto namedKeys = std::to_array<NamedKey>({
    {Qt::Key_Space, "Space", "space", 0x20},
    {Qt::Key_Tab, "Tab", "Tab", 0xff09},
    {Qt::Key_Return, "Return", "Return", 0xff0d},
    {Qt::Key_Insert, "Insert", "Insert", 0xff63},
    {Qt::Key_Delete, "Delete", "Delete", 0xffff},
    {Qt::Key_Home, "Home", "Home", 0xff50},
    {Qt::Key_End, "End", "End", 0xff57},
    {Qt::Key_PageUp, "Page Up", "Prior", 0xff55},
    {Qt::Key_PageDown, "Page Down", "Next", 0xff56},
    {Qt::Key_Left, "Left", "Left", 0xff51},
    {Qt::Key_Up, "Up", "Up", 0xff52},
    {Qt::Key_Right, "Right", "Right", 0xff53},
    {Qt::Key_Down, "Down", "Down", 0xff54},
    {Qt::Key_Print, "Print", "Print", 0xff61},
    {Qt::Key_Pause, "Pause", "Pause", 0xff13},
    {Qt::Key_Menu, "Menu", "Menu", 0xff67},
    {Qt::Key_QuoteLeft, "`", "grave", 0x60},
    {Qt::Key_Minus, "-", "minus", 0x2d},
    {Qt::Key_Equal, "=", "equal", 0x3d},
    {Qt::Key_BracketLeft, "[", "bracketleft", 0x5b},
    {Qt::Key_BracketRight, "]", "bracketright", 0x5d},
    {Qt::Key_Semicolon, ";", "semicolon", 0x3b},
    {Qt::Key_Apostrophe, "'", "apostrophe", 0x27},
    {Qt::Key_Comma, ",", "comma", 0x2c},
    {Qt::Key_Period, ".", "period", 0x2e},
    {Qt::Key_Slash, "/", "slash", 0x2f},
    {Qt::Key_Backslash, "\\", "backslash", 0x5c},
    {Qt::Key_Less, "<", "less", 0x3c},
    {Qt::Key_Plus, "Plus", "plus", 0x2b},
    {Qt::Key_NumberSign, "#", "numbersign", 0x23},
});

struct Modifier {
    Qt::KeyboardModifier flag;
    const char* cap;
};

constexpr auto knownModifiers = std::to_array<Modifier>({{Qt::MetaModifier, "Super"},
                                                         {Qt::ControlModifier, "Ctrl"},
                                                         {Qt::AltModifier, "Alt"},
                                                         {Qt::ShiftModifier, "Shift"}});

const NamedKey* named(int key) {
    const auto* found = std::ranges::find(namedKeys, key, &NamedKey::key);
    return found == namedKeys.end() ? nullptr : found;
}

bool isFunctionKey(int key) {
    return key >= Qt::Key_F1 && key <= Qt::Key_F24;
}

/// Their codes are those of their letters.
bool isLetterOrDigit(int key) {
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

bool isShortcut(int key, Qt::KeyboardModifiers modifiers) {
    if (KeyCombination::copiesOrPastes(key, modifiers)) {
        return false;
    }
    if (isFunctionKey(key) || key == Qt::Key_Print || key == Qt::Key_Pause) {
        return true;
    }
    const auto needed = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return (isLetterOrDigit(key) || named(key) != nullptr) && (modifiers & needed);
}

QString capOf(int key) {
    if (isFunctionKey(key)) {
        return u"F"_s + QString::number(key - Qt::Key_F1 + 1);
    }
    const NamedKey* name = named(key);
    return name != nullptr ? QString::fromLatin1(name->cap) : QString(QChar(key));
}

int keyOf(const QString& cap) {
    for (int key = Qt::Key_F1; key <= Qt::Key_F24; ++key) {
        if (capOf(key) == cap) {
            return key;
        }
    }
    for (const NamedKey& one : namedKeys) {
        if (QLatin1StringView(one.cap) == cap) {
            return one.key;
        }
    }
    return cap.size() == 1 ? cap.front().toUpper().unicode() : 0;
}

} // namespace

std::optional<KeyCombination> KeyCombination::fromText(const QString& text) {
    QStringList caps = text.split(u'+');
    const QString cap = caps.takeLast();
    KeyCombination keys{{}, keyOf(cap)};
    for (const QString& name : caps) {
        const auto* found = std::ranges::find_if(knownModifiers, [&](const Modifier& one) {
            return QLatin1StringView(one.cap) == name;
        });
        if (found == knownModifiers.end()) {
            return std::nullopt;
        }
        keys.modifiers |= found->flag;
    }
    return isShortcut(keys.key, keys.modifiers) ? std::optional(keys) : std::nullopt;
}

std::optional<KeyCombination> KeyCombination::pressed(int key, Qt::KeyboardModifiers modifiers,
                                                      quint32 scanCode) {
    constexpr quint32 codeOf1 = 10;
    constexpr quint32 codeOf0 = 19;
    if (key == Qt::Key_Backtab) {
        key = Qt::Key_Tab;
    } else if (key == Qt::Key_Enter) {
        key = Qt::Key_Return;
    } else if (scanCode >= codeOf1 && scanCode <= codeOf0 && (modifiers & Qt::ShiftModifier)) {
        key = Qt::Key_0 + int((scanCode - codeOf1 + 1) % 10);
    }
    modifiers &= Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier | Qt::MetaModifier;
    return isShortcut(key, modifiers) ? std::optional(KeyCombination{modifiers, key})
                                      : std::nullopt;
}

bool KeyCombination::copiesOrPastes(int key, Qt::KeyboardModifiers modifiers) {
    switch (key) {
    case Qt::Key_C:
    case Qt::Key_V:
    case Qt::Key_X:
        return (modifiers & ~Qt::ShiftModifier) == Qt::ControlModifier;
    case Qt::Key_Insert:
        return modifiers == Qt::ControlModifier || modifiers == Qt::ShiftModifier;
    case Qt::Key_Delete:
        return modifiers == Qt::ShiftModifier;
    default:
        return false;
    }
}

QStringList KeyCombination::caps() const {
    QStringList caps;
    for (const Modifier& one : knownModifiers) {
        if (modifiers & one.flag) {
            caps.append(QString::fromLatin1(one.cap));
        }
    }
    caps.append(capOf(key));
    return caps;
}

quint32 KeyCombination::keysym() const {
    constexpr quint32 f1 = 0xffbe;
    if (isFunctionKey(key)) {
        return f1 + quint32(key - Qt::Key_F1);
    }
    const NamedKey* name = named(key);
    return name != nullptr ? name->keysym : QChar(key).toLower().unicode();
}

QString KeyCombination::keysymName() const {
    if (isFunctionKey(key)) {
        return capOf(key);
    }
    const NamedKey* name = named(key);
    return name != nullptr ? QString::fromLatin1(name->keysymName) : QString(QChar(key)).toLower();
}

} // namespace ravelo
