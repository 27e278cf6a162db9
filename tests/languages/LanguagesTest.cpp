#include "languages/Languages.h"

#include <QCoreApplication>
#include <QLocale>

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QString text(const char* context, const char* source) {
    return QCoreApplication::translate(context, source);
}

TEST(Languages, TextsAndNumbersFollowTheLanguage) {
    QLocale::setDefault(QLocale(u"en_GB"_s));
    useLanguage({});
    EXPECT_EQ(text("TopBar", "Shut down the Mac?"), u"Shut down the Mac?"_s) << "as it is";

    useLanguage(u"en"_s);
    EXPECT_EQ(text("TopBar", "Shut down the Mac?"), u"Shut down the computer?"_s);
    EXPECT_EQ(text("ravelo::UsageText", "reseta em %1"), u"resets in %1"_s);
    EXPECT_EQ(text("TopBar", "Settings"), u"Settings"_s) << "the rest stays";
    EXPECT_EQ(QLocale().name(), u"en_GB"_s);

    useLanguage(u"pt_BR"_s);
    EXPECT_EQ(text("TopBar", "Settings"), u"Ajustes"_s);
    EXPECT_EQ(text("ravelo::UsageText", "reseta em %1"), u"reseta em %1"_s);
    EXPECT_EQ(QLocale().toString(1234.5, 'f', 1), u"1.234,5"_s);

    QLocale::setDefault(QLocale(u"de_AT"_s));
    useLanguage(u"de"_s);
    EXPECT_EQ(text("TopBar", "Settings"), u"Einstellungen"_s);
    EXPECT_EQ(QLocale().name(), u"de_AT"_s) << "Austria has dates of its own";
}

} // namespace

} // namespace ravelo
