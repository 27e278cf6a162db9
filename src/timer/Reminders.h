#pragma once

#include <QStringList>

#include <optional>

namespace ravelo {

class Preferences;

/// The lines that can be shown below the closed panel; kept in the preferences.
struct Reminders {
    bool open = false; ///< The user wants to see them.
    QStringList texts;

    /// Falls back to the single line of older versions.
    [[nodiscard]] static Reminders load(const Preferences& preferences);

    /// The texts with what the user typed appended, trimmed and cut to 16 characters; nothing if it
    /// is blank.
    [[nodiscard]] std::optional<QStringList> added(const QString& typed) const;

    void keepOpen(Preferences& preferences) const;
    void keepTexts(Preferences& preferences) const;

    [[nodiscard]] bool visible() const { return open && !texts.isEmpty(); }
};

} // namespace ravelo
