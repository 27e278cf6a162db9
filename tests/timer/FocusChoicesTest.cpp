#include "timer/FocusChoices.h"

#include "fakes/MemoryPreferences.h"
#include "timer/Reminders.h"

#include <gtest/gtest.h>

#include <QJsonArray>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST(MinutesLabel, HasHoursOnlyIfNeeded) {
    const std::pair<double, QString> cases[] = {
        {25, u"25m"_s}, {59.9, u"59m"_s}, {60, u"1h"_s},    {90, u"1h30"_s},
        {120, u"2h"_s}, {125, u"2h05"_s}, {1440, u"24h"_s}, {0, u"0m"_s}};
    for (const auto& [minutes, label] : cases) {
        EXPECT_EQ(minutesLabel(minutes), label) << minutes;
    }
}

TEST(CustomMinutes, ArePositiveIntegersUpToADay) {
    const std::pair<QString, std::optional<int>> cases[] = {
        {u" 45\t"_s, 45},          {u"+7"_s, 7},
        {u"3000"_s, 1440},         {u"99999999999999999999"_s, 1440},
        {u"0"_s, std::nullopt},    {u"-5"_s, std::nullopt},
        {u"abc"_s, std::nullopt},  {u""_s, std::nullopt},
        {u"4 5"_s, std::nullopt},  {u"1.5"_s, std::nullopt},
        {u"0x10"_s, std::nullopt}, {u"\u0664\u0665"_s, std::nullopt}};
    for (const auto& [typed, minutes] : cases) {
        EXPECT_EQ(customMinutes(typed), minutes) << qPrintable(typed);
    }
}

TEST(FocusChoices, AreTheUsualOnesUntilTheUserHasOthers) {
    MemoryPreferences preferences;
    FocusChoices choices = FocusChoices::load(preferences);
    EXPECT_EQ(choices.minutes, 60);
    EXPECT_EQ(choices.presets, QStringList({u"Deep work"_s, u"Estimates"_s, u"Recording"_s,
                                            u"Admin"_s, u"Video"_s}));
    choices.minutes = 25;
    choices.presets.clear();
    choices.keepMinutes(preferences);
    choices.keepPresets(preferences);
    choices = FocusChoices::load(preferences);
    EXPECT_EQ(choices.minutes, 25);
    EXPECT_EQ(choices.presets, QStringList()) << "an empty list is the user's own";
    preferences.set(u"focusMinutes"_s, -1);
    preferences.set(u"focusPresets"_s, QJsonArray{1, 2});
    EXPECT_EQ(FocusChoices::load(preferences).minutes, 60);
    EXPECT_EQ(FocusChoices::load(preferences).presets.size(), 5) << "no texts";
}

TEST(AddedReminder, IsTrimmedAndCut) {
    const Reminders reminders{true, {u"one"_s}};
    const QString family = u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s;
    const std::pair<QString, QString> cases[] = {
        {u"  Call the framer about the mirror "_s, u"Call the framer "_s},
        {u"short"_s, u"short"_s},
        {family + u"0123456789abcdefg"_s, family + u"0123456789abcde"_s}};
    for (const auto& [typed, kept] : cases) {
        EXPECT_EQ(reminders.added(typed), QStringList({u"one"_s, kept})) << qPrintable(typed);
    }
    EXPECT_EQ(reminders.added(u" \t\n"_s), std::nullopt);
}

} // namespace
} // namespace ravelo
