#include "base/Files.h"
#include "live/support/Clients.h"
#include "platform/x11/settings/X11Preferences.h"
#include "platform/x11/settings/XSettings.h"

#include <gtest/gtest.h>

#include <QTemporaryFile>

#include <csignal>

namespace ravelo::x11 {
namespace {

using namespace Qt::StringLiterals;

bool handlesHangUp(pid_t process) {
    const auto status = readFile(u"/proc/%1/status"_s.arg(process)).value_or(QByteArray());
    const qsizetype mask = status.indexOf("SigCgt:\t");
    return mask >= 0 &&
           (status.mid(mask + 8, 16).toULongLong(nullptr, 16) & (1U << (SIGHUP - 1))) != 0;
}

TEST(MotionPreference, followsTheDesktopsSettingsManager) {
    QTemporaryFile config;
    ASSERT_TRUE(config.open());
    const auto write = [&](const QByteArray& value) {
        config.resize(0);
        config.seek(0);
        config.write("Net/IconThemeName \"Papirus\"\nGtk/EnableAnimations " + value + "\n");
        config.flush();
    };
    const auto connection = std::move(Connection::create().value());
    Events events(*connection);
    ManagerProperty settings(*connection, events, ManagerSelection::settings,
                             "_XSETTINGS_SETTINGS");
    const X11IconPreference icons(settings);
    X11MotionPreference motion(settings);
    EXPECT_FALSE(motion.isReduced()) << "not requested";
    int calls = 0;
    const Handle listening = motion.onChange([&] { ++calls; });

    write("0");
    auto manager =
        std::make_unique<live::Client>(u"xsettingsd"_s, QStringList{u"-c"_s, config.fileName()});
    EXPECT_TRUE(eventually([&] { return motion.isReduced(); })) << "a manager came";
    EXPECT_EQ(icons.theme(), u"Papirus"_s);
    const auto process = static_cast<pid_t>(manager->processId());
    ASSERT_TRUE(eventually([&] { return handlesHangUp(process); })) << "else the signal ends it";
    const auto becomes = [&](bool reduced) {
        return eventually([&] {
            kill(process, SIGHUP); // Again: one that comes while it reads is lost.
            return motion.isReduced() == reduced;
        });
    };
    write("1");
    EXPECT_TRUE(becomes(false)) << "the user changed it";
    write("0");
    EXPECT_TRUE(becomes(true)) << "and changed it back";
    manager.reset();
    EXPECT_TRUE(eventually([&] { return !motion.isReduced(); })) << "the manager went";
    EXPECT_EQ(icons.theme(), QString());
    EXPECT_EQ(calls, 4);
}

TEST(XSettings, findsValuesInWholePropertiesOnly) {
    const QByteArray property =
        QByteArray::fromHex("00000000 07000000 03000000" // Three of them:
                            "0100 0300 41626300 01000000 05000000 68656c6c6f000000" // Abc, "hello"
                            "0200 0100 43000000 01000000 0100020003000400"          // C, a colour
                            "0000 0400 4e756d62 01000000 2a000000");                // Numb, 42
    EXPECT_EQ(xsettingsInteger(property, "Numb"), 42);
    EXPECT_EQ(xsettingsInteger(property, "Abc"), std::nullopt) << "a string";
    EXPECT_EQ(xsettingsInteger(property, "Other"), std::nullopt);
    EXPECT_EQ(xsettingsString(property, "Abc"), "hello");
    EXPECT_EQ(xsettingsString(property, "Numb"), std::nullopt) << "an integer";
    for (qsizetype length = 0; length < property.size(); ++length) {
        EXPECT_EQ(xsettingsInteger(property.first(length), "Numb"), std::nullopt)
            << "the first " << length << " bytes of it";
    }
    EXPECT_EQ(xsettingsString(property.first(32), "Abc"), std::nullopt) << "its last letter";
    EXPECT_EQ(xsettingsInteger(QByteArray(64, '\xff'), "Numb"), std::nullopt);
}

} // namespace
} // namespace ravelo::x11
