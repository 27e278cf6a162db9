#pragma once

#include "platform/Preferences.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <memory>

namespace ravelo {

/// Preferences under test.
class PreferencesUnderTest {
public:
    virtual ~PreferencesUnderTest() = default;

    [[nodiscard]] virtual Preferences& preferences() = 0;

    /// The program ends and starts again.
    virtual void restart() = 0;
};

using MakePreferences = std::unique_ptr<PreferencesUnderTest> (*)();

/// What all preferences guarantee.
class PreferencesContract : public testing::TestWithParam<MakePreferences> {
protected:
    [[nodiscard]] QJsonValue value(const char16_t* key) {
        return made_->preferences().value(QString::fromUtf16(key));
    }

    void set(const char16_t* key, const QJsonValue& value) {
        made_->preferences().set(QString::fromUtf16(key), value);
    }

    std::unique_ptr<PreferencesUnderTest> made_ = GetParam()();
};

TEST_P(PreferencesContract, HaveNoValueBeforeItIsSet) {
    EXPECT_TRUE(value(u"a").isUndefined());
    set(u"a", false);
    EXPECT_TRUE(value(u"b").isUndefined());
    EXPECT_TRUE(value(u"A").isUndefined());
}

TEST_P(PreferencesContract, KeepValuesAndTheirTypes) {
    const std::pair<const char16_t*, QJsonValue> values[] = {
        {u"flag", true},
        {u"whole", 927.0},
        {u"number", 0.1},
        {u"text", QStringLiteral("true \u00fc \"\n")},
        {u"list", QJsonArray({QStringLiteral("a"), QStringLiteral("")})},
        {u"null", QJsonValue::Null}};
    for (const auto& [key, kept] : values) {
        set(key, kept);
        EXPECT_EQ(value(key), kept) << "at once";
    }
    made_->restart();
    for (const auto& [key, kept] : values) {
        EXPECT_EQ(value(key), kept) << "after a restart: " << QString::fromUtf16(key).toStdString();
    }
}

TEST_P(PreferencesContract, LastValueOfAKeyStays) {
    for (int i = 0; i < 100; ++i) {
        set(u"a", i);
        set(u"b", QString::number(i));
    }
    made_->restart();
    EXPECT_EQ(value(u"a"), 99);
    EXPECT_EQ(value(u"b"), QStringLiteral("99"));
}

} // namespace ravelo
