#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace ravelo {

/// A key together with modifiers, such as Super+V. Any thread.
struct KeyCombination {
    Qt::KeyboardModifiers modifiers;
    int key; ///< A Qt::Key that we have a name for.

    /// Such as "Super+V"; nothing if that cannot be a shortcut.
    [[nodiscard]] static std::optional<KeyCombination> fromText(const QString& text);

    /// What a key event stands for. `scanCode` is that of evdev + 8, or 0: with Shift, digits have
    /// other names. Nothing while only modifiers are down, or for keys that cannot be a shortcut:
    /// letters and the like need Ctrl, Alt or Super, and keys that copy or paste are never one.
    [[nodiscard]] static std::optional<KeyCombination>
    pressed(int key, Qt::KeyboardModifiers modifiers, quint32 scanCode);

    /// Whether programs copy, cut or paste with these keys: taking them would break that, and what
    /// we type to paste would open the panel.
    [[nodiscard]] static bool copiesOrPastes(int key, Qt::KeyboardModifiers modifiers);

    /// As on the keys: "Super", "V".
    [[nodiscard]] QStringList caps() const;

    [[nodiscard]] QString text() const { return caps().join(u'+'); }

    /// Of X11 and xkb, without modifiers.
    [[nodiscard]] quint32 keysym() const;
    [[nodiscard]] QString keysymName() const;

    friend bool operator==(const KeyCombination&, const KeyCombination&) = default;
};

} // namespace ravelo
