#pragma once

#include <QStringList>

#include <optional>

namespace ravelo {

class Preferences;

/// How long the next focus timer runs, and what it can be for; kept in the preferences.
struct FocusChoices {
    double minutes = 60;
    QStringList presets;

    [[nodiscard]] static FocusChoices load(const Preferences& preferences);

    void keepMinutes(Preferences& preferences) const;
    void keepPresets(Preferences& preferences) const;
};

/// "25m", "1h", "1h30"; fractions of a minute are cut off. `minutes` is not negative.
[[nodiscard]] QString minutesLabel(double minutes);

/// The whole number of minutes that somebody typed, a day at most; nothing where it is none or not
/// positive.
[[nodiscard]] std::optional<int> customMinutes(const QString& typed);

} // namespace ravelo
