#pragma once

#include <QStringList>

#include <optional>

namespace ravelo {

class Preferences;

/// The length of the next focus timer and the choice of labels; kept in the preferences.
struct FocusChoices {
    double minutes = 60;
    QStringList presets;

    [[nodiscard]] static FocusChoices load(const Preferences& preferences);

    void keepMinutes(Preferences& preferences) const;
    void keepPresets(Preferences& preferences) const;
};

/// "25m", "1h", "1h30"; fractions of a minute are cut off. `minutes` is not negative.
[[nodiscard]] QString minutesLabel(double minutes);

/// The whole number of minutes that the user typed, capped at a day; nothing if it is not a
/// positive number.
[[nodiscard]] std::optional<int> customMinutes(const QString& typed);

} // namespace ravelo
