#pragma once

#include <QStringList>

#include <optional>

namespace ravelo {

class Preferences;

/// The lines that can be shown where the panel hangs while it is closed, kept in the preferences.
struct Reminders {
    bool open = false; ///< The user wants to see them.
    QStringList texts;

    /// An older version had a single line; it counts where there are no others.
    [[nodiscard]] static Reminders load(const Preferences& preferences);

    /// The texts with what somebody typed, without the white space around it and no longer than 16
    /// characters, at the end; nothing where nothing is left of it.
    [[nodiscard]] std::optional<QStringList> added(const QString& typed) const;

    void keepOpen(Preferences& preferences) const;
    void keepTexts(Preferences& preferences) const;

    [[nodiscard]] bool visible() const { return open && !texts.isEmpty(); }
};

} // namespace ravelo
