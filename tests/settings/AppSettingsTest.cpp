#include "settings/AppSettings.h"
#include "fakes/FakeServices.h"
#include "fakes/MemoryPreferences.h"
#include "support/RunTests.h"
#include "support/SignalCount.h"

#include <QJsonArray>
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

const Field fields[] = {
    {"bgOpacity", &AppSettings::bgOpacityChanged, 0.55, 0.8, u"0.8"_s},
    {"fullBlack", &AppSettings::fullBlackChanged, false, true, 1},
    {"panelWidth", &AppSettings::panelWidthChanged, 927.0, 1040.5, u"1100"_s},
    {"hotkeyEnabled", &AppSettings::hotkeyEnabledChanged, true, false, u"false"_s, WrittenBack::no},
    {"lastTab", &AppSettings::lastTabChanged, u"Clipboard"_s, u"Notes"_s, 3},
    {"pinnedBar", &AppSettings::pinnedBarChanged, false, true, u"true"_s, WrittenBack::no},
    {"macType", &AppSettings::macTypeChanged, u"auto"_s, u"notch"_s, true},
    {"newestFirst", &AppSettings::newestFirstChanged, false, true, 1},
    {"historyLength", &AppSettings::historyLengthChanged, 60, 1000, u"200"_s},
    {"keepTextsExactly", &AppSettings::keepTextsExactlyChanged, false, true, u"true"_s},
    {"keepDays", &AppSettings::keepDaysChanged, 0, 7, u"7"_s},
    {"textLimit", &AppSettings::textLimitChanged, 0, 64, true},
    {"imageLimit", &AppSettings::imageLimitChanged, 0, 512, u"512"_s},
    {"forgetKeyWhileLocked", &AppSettings::forgetKeyWhileLockedChanged, false, true, 1},
    {"ignoredPrograms", &AppSettings::ignoredProgramsChanged, QJsonArray(),
     QJsonArray{u"KeePassXC"_s}, u"KeePassXC"_s},
    {"ignoredPatterns", &AppSettings::ignoredPatternsChanged, QJsonArray(),
     QJsonArray{u"^a"_s, u"b "_s}, true},
    {"forgetSecrets", &AppSettings::forgetSecretsChanged, 10, -1, u"1"_s},
    {"keyLikeWords", &AppSettings::keyLikeWordsChanged, false, true, 1},
    {"keepSelectedText", &AppSettings::keepSelectedTextChanged, false, true, u"true"_s},
    {"shortcut", &AppSettings::shortcutChanged, u""_s, u"Super+V"_s, true},
    {"returnPastes", &AppSettings::returnPastesChanged, false, true, 1},
    {"joinWith", &AppSettings::joinWithChanged, u"line"_s, u"comma"_s, 1},
    {"showOrigins", &AppSettings::showOriginsChanged, false, true, u"on"_s},
    {"hideClaudeCode", &AppSettings::hideClaudeCodeChanged, false, true, 1},
    {"showPeakHours", &AppSettings::showPeakHoursChanged, true, false, 0},
    {"keepSession", &AppSettings::keepSessionChanged, false, true, 1},
    {"handedOverFirst", &AppSettings::handedOverFirstChanged, false, true, u"true"_s},
    {"secondAccount", &AppSettings::secondAccountChanged, QString(), u"/home/u/second"_s, 2},
    {"notifyTimer", &AppSettings::notifyTimerChanged, false, true, 1},
    {"notifyFiles", &AppSettings::notifyFilesChanged, false, true, 1},
    {"notifySaving", &AppSettings::notifySavingChanged, false, true, 1},
    {"notifyPlan", &AppSettings::notifyPlanChanged, false, true, 1},
    {"language", &AppSettings::languageChanged, QString(), u"pt_BR"_s, u"fr"_s},
    {"onboarded", &AppSettings::onboardedChanged, false, true, u"yes"_s}};

TEST(Settings, AreReadNotifiedAndKept) {
    const QMetaObject& all = AppSettings::staticMetaObject;
    EXPECT_EQ(std::ssize(fields), all.propertyCount() - all.propertyOffset() - 1)
        << "all but launchAtLogin";
    for (const Field& field : fields) {
        SCOPED_TRACE(field.name);
        const QString key = QString::fromLatin1(field.name);
        MemoryPreferences preferences;
        FakeLoginItem loginItem;
        const auto restarted = [&] {
            const AppSettings settings(preferences, loginItem);
            return QJsonValue::fromVariant(settings.property(field.name));
        };
        EXPECT_EQ(restarted(), field.standard) << "without a value";
        EXPECT_TRUE(preferences.value(key).isUndefined()) << "reading writes nothing";
        preferences.set(key, field.other);
        EXPECT_EQ(restarted(), field.other);
        preferences.set(key, field.wrongType);
        EXPECT_EQ(restarted(), field.standard) << "with a value of a wrong type";
        EXPECT_EQ(preferences.value(key), field.wrongType) << "it stays until it is set";

        AppSettings settings(preferences, loginItem);
        const SignalCount emitted(&settings, field.changed);
        const bool kept = field.writtenBack == WrittenBack::yes;
        int layouts = 0;
        settings.onLayoutChange = [&] {
            ++layouts;
            EXPECT_EQ(preferences.value(key), field.other) << "written before the notification";
        };
        for (int times = 0; times < 2; ++times) {
            ASSERT_TRUE(settings.setProperty(field.name, field.other.toVariant()));
        }
        EXPECT_EQ(QJsonValue::fromVariant(settings.property(field.name)), field.other);
        EXPECT_EQ(emitted.count(), 1) << "the second time nothing changed";
        EXPECT_EQ(layouts, key == u"macType" ? 1 : 0);
        EXPECT_EQ(preferences.value(key), kept ? field.other : field.wrongType);
        EXPECT_EQ(restarted(), kept ? field.other : field.standard) << "after a restart";
    }
}

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

TEST(SettingsRange, AllowsThreeHistoryLengthsAndNeverShortensOne) {
    for (const auto& [stored, length] :
         {std::pair(200, 200), {0, 60}, {-1, 60}, {61, 200}, {500, 1000}, {5000, 1000}}) {
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
    const SignalCount emitted(&settings, &AppSettings::launchAtLoginChanged);
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(loginItem_.enabled);
    EXPECT_EQ(emitted.count(), 0);
    EXPECT_TRUE(preferences_.value(u"launchAtLogin"_s).isUndefined());
}

TEST_F(LoginSetting, FailureIsLoggedAndTheChoiceStays) {
    loginItem_.refuses = true;
    AppSettings settings(preferences_, loginItem_);
    expectWarning(u"Ravelo login-item error: refused"_s);
    settings.setupLoginItemDefaultIfNeeded();
    EXPECT_TRUE(settings.launchAtLogin());
    EXPECT_FALSE(loginItem_.enabled);
}

} // namespace

} // namespace ravelo
