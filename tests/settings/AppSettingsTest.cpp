#include "settings/AppSettings.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/MemoryPreferences.h"
#include "support/ExpectedWarning.h"
#include "support/Told.h"

#include <QVariant>

#include <gtest/gtest.h>

#include <array>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

enum class WrittenBack { yes, no };

struct Field {
    const char* name; ///< Of the property and of its key.
    void (AppSettings::*changed)();
    QJsonValue standard;
    QJsonValue other;
    QJsonValue wrongType;
    WrittenBack writtenBack = WrittenBack::yes;
};

void PrintTo(const Field& field, std::ostream* out) {
    *out << field.name;
}

class SettingsField : public testing::TestWithParam<Field> {
protected:
    [[nodiscard]] QJsonValue field(const AppSettings& settings) const {
        return QJsonValue::fromVariant(settings.property(GetParam().name));
    }

    QString key_ = QString::fromLatin1(GetParam().name);
    MemoryPreferences preferences_;
    FakeLoginItem loginItem_;
};

TEST_P(SettingsField, HasItsDefaultWithoutAValue) {
    const AppSettings settings(preferences_, loginItem_);
    EXPECT_EQ(field(settings), GetParam().standard);
    EXPECT_TRUE(preferences_.value(key_).isUndefined()) << "reading writes nothing";
}

TEST_P(SettingsField, IsReadIfItsTypeIsRight) {
    preferences_.set(key_, GetParam().other);
    EXPECT_EQ(field(AppSettings(preferences_, loginItem_)), GetParam().other);
    preferences_.set(key_, GetParam().wrongType);
    EXPECT_EQ(field(AppSettings(preferences_, loginItem_)), GetParam().standard);
    EXPECT_EQ(preferences_.value(key_), GetParam().wrongType) << "it stays until it is set";
}

TEST_P(SettingsField, NotifiesAndIsKeptWhenSet) {
    AppSettings settings(preferences_, loginItem_);
    const Told told(&settings, GetParam().changed);
    int layouts = 0;
    settings.onLayoutChange = [&] {
        ++layouts;
        EXPECT_EQ(preferences_.value(key_), GetParam().other) << "written before the notification";
    };
    for (int times = 0; times < 2; ++times) {
        ASSERT_TRUE(settings.setProperty(GetParam().name, GetParam().other.toVariant()));
    }
    EXPECT_EQ(field(settings), GetParam().other);
    EXPECT_EQ(told.count(), 1) << "the second time nothing changed";
    EXPECT_EQ(layouts, key_ == u"macType"_s ? 1 : 0);

    const bool kept = GetParam().writtenBack == WrittenBack::yes;
    EXPECT_EQ(preferences_.value(key_), kept ? GetParam().other : QJsonValue::Undefined);
    EXPECT_EQ(field(AppSettings(preferences_, loginItem_)),
              kept ? GetParam().other : GetParam().standard)
        << "after a restart";
}

INSTANTIATE_TEST_SUITE_P(
    Table, SettingsField,
    testing::Values(
        Field{"bgOpacity", &AppSettings::bgOpacityChanged, 0.55, 0.8, u"0.8"_s},
        Field{"fullBlack", &AppSettings::fullBlackChanged, false, true, 1},
        Field{"panelWidth", &AppSettings::panelWidthChanged, 927.0, 1040.5, u"1100"_s},
        Field{"hotkeyEnabled", &AppSettings::hotkeyEnabledChanged, true, false, u"false"_s,
              WrittenBack::no},
        Field{"lastTab", &AppSettings::lastTabChanged, u"Clipboard"_s, u"Notes"_s, 3},
        Field{"pinnedBar", &AppSettings::pinnedBarChanged, false, true, u"true"_s, WrittenBack::no},
        Field{"macType", &AppSettings::macTypeChanged, u"auto"_s, u"notch"_s, true},
        Field{"newestFirst", &AppSettings::newestFirstChanged, false, true, 1},
        Field{"historyLength", &AppSettings::historyLengthChanged, 60, 1000, u"200"_s},
        Field{"keepTextsExactly", &AppSettings::keepTextsExactlyChanged, false, true, u"true"_s},
        Field{"hideClaudeCode", &AppSettings::hideClaudeCodeChanged, false, true, 1},
        Field{"onboarded", &AppSettings::onboardedChanged, false, true, u"yes"_s}));

TEST(SettingsRange, KeepsThePanelVisible) {
    for (const auto& [stored, width, opacity] :
         {std::array{-5.0, 927.0, 0.55}, std::array{1e300, 927.0, 0.55},
          std::array{0.9, 927.0, 0.9}, std::array{400.0, 400.0, 0.55}}) {
        MemoryPreferences preferences;
        FakeLoginItem loginItem;
        preferences.set(u"panelWidth"_s, stored);
        preferences.set(u"bgOpacity"_s, stored);
        const AppSettings settings(preferences, loginItem);
        EXPECT_EQ(settings.panelWidth(), width) << stored;
        EXPECT_EQ(settings.bgOpacity(), opacity) << stored;
    }
}

TEST(SettingsRange, AllowsThreeHistoryLengths) {
    for (const auto& [stored, length] : {std::pair(200, 200), {0, 60}, {-1, 60}, {61, 60}}) {
        MemoryPreferences preferences;
        FakeLoginItem loginItem;
        preferences.set(u"historyLength"_s, stored);
        EXPECT_EQ(AppSettings(preferences, loginItem).historyLength(), length) << stored;
    }
}

class LoginSetting : public testing::Test {
protected:
    MemoryPreferences preferences_;
    FakeLoginItem loginItem_;
};

TEST_F(LoginSetting, FirstRunRegistersOnce) {
    {
        AppSettings settings(preferences_, loginItem_);
        EXPECT_FALSE(settings.launchAtLogin());
        settings.setupLoginItemDefaultIfNeeded();
        EXPECT_TRUE(settings.launchAtLogin());
        EXPECT_TRUE(loginItem_.enabled);
        EXPECT_EQ(preferences_.value(u"didSetupLogin"_s), true);
        settings.setLaunchAtLogin(false);
        EXPECT_FALSE(loginItem_.enabled);
    }
    for (const bool flag : {true, false}) { // Any value of the flag counts.
        preferences_.set(u"didSetupLogin"_s, flag);
        AppSettings settings(preferences_, loginItem_);
        settings.setupLoginItemDefaultIfNeeded();
        EXPECT_FALSE(settings.launchAtLogin()) << "the user's choice stays";
        EXPECT_FALSE(loginItem_.enabled);
    }
}

TEST_F(LoginSetting, FollowsTheDesktopAndIsAppliedEachTime) {
    loginItem_.enabled = true;
    AppSettings settings(preferences_, loginItem_);
    EXPECT_TRUE(settings.launchAtLogin());
    loginItem_.enabled = false; // Somebody removed the entry.
    const Told told(&settings, &AppSettings::launchAtLoginChanged);
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(loginItem_.enabled);
    EXPECT_EQ(told.count(), 0);
    EXPECT_TRUE(preferences_.value(u"launchAtLogin"_s).isUndefined());
}

TEST_F(LoginSetting, FailureIsLoggedAndTheChoiceStays) {
    loginItem_.refuses = true;
    AppSettings settings(preferences_, loginItem_);
    const ExpectedWarning warning(u"Ravelo login-item error: refused"_s);
    settings.setupLoginItemDefaultIfNeeded();
    EXPECT_TRUE(settings.launchAtLogin());
    EXPECT_FALSE(loginItem_.enabled);
}

} // namespace

} // namespace ravelo
