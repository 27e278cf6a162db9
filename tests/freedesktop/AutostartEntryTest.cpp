#include "platform/freedesktop/AutostartEntry.h"

#include "base/Files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class Autostart : public testing::Test {
protected:
    [[nodiscard]] QString folder() const { return config_.filePath(u"config/autostart"_s); }

    [[nodiscard]] QString file() const { return folder() + u"/ravelo.desktop"_s; }

    void write(const QByteArray& text) {
        ASSERT_TRUE(QDir().mkpath(folder()));
        ASSERT_TRUE(writeFileAtomically(file(), text));
    }

    QTemporaryDir config_;
};

struct Entry {
    const char* text; ///< Null where there is no file.
    bool enabled;
};

class ExistingEntry : public Autostart, public testing::WithParamInterface<Entry> {};

TEST_P(ExistingEntry, CountsAsTheDesktopSeesIt) {
    if (GetParam().text) {
        write(GetParam().text);
    }
    EXPECT_EQ(AutostartEntry(folder(), u"/here, that's us/ravelo"_s).isEnabled(),
              GetParam().enabled);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ExistingEntry,
    testing::Values(Entry{nullptr, false}, Entry{"", false},
                    Entry{"[Desktop Entry]\nName=Ravelo\n", false},
                    Entry{"[Desktop Entry]\nExec=/nowhere/ravelo\n", false},
                    Entry{"[Desktop Entry]\nExec=\"/here, that's us/ravelo\"\n", true},
                    Entry{"# by hand\n\n[Desktop Entry]\nExec = \"/bin/sh\" -c true", true},
                    Entry{"[Desktop Entry]\nExec=sh -c ravelo\n", true},
                    Entry{"[Desktop Entry]\nExec=no-such-program\n", false},
                    Entry{"[Desktop Entry]\r\nExec=/bin/sh\r\nHidden=true\r\n", false},
                    Entry{"[Desktop Entry]\nExec=/bin/sh\nHidden=false\n", true},
                    Entry{"[Desktop Entry]\nExec=/bin/sh\nX-GNOME-Autostart-enabled=false\n",
                          false},
                    Entry{"[Desktop Entry]\nExec=/bin/sh\nX-GNOME-Autostart-enabled=true\n", true},
                    Entry{"[Desktop Entry]\nExec=/bin/sh\n[Desktop Action x]\nHidden=true\n", true},
                    Entry{"[Other]\nExec=/bin/sh\n", false}));

TEST_F(Autostart, WritesAnEntryAgainWhoseProgramIsGone) {
    AutostartEntry entry(folder(), u"/usr/bin/ravelo"_s);
    EXPECT_TRUE(entry.repair());
    EXPECT_FALSE(QFile::exists(file())) << "it was off";
    for (const QByteArray kept :
         {"[Desktop Entry]\nExec=/gone/ravelo\nHidden=true\n", "[Desktop Entry]\nExec=/bin/sh\n"}) {
        write(kept);
        EXPECT_TRUE(entry.repair());
        EXPECT_EQ(readFile(file()), kept);
    }
    write("[Desktop Entry]\nExec=/gone/ravelo\n");
    EXPECT_TRUE(entry.repair());
    EXPECT_TRUE(entry.isEnabled());
    EXPECT_TRUE(readFile(file())->contains("Exec=\"/usr/bin/ravelo\"\n"));
}

TEST_F(Autostart, IsSwitchedOnAndOff) {
    AutostartEntry entry(folder(), u"/usr/bin/ravelo"_s);
    EXPECT_TRUE(entry.setEnabled(false)) << "off already";
    EXPECT_TRUE(entry.setEnabled(true));
    EXPECT_TRUE(entry.isEnabled());
    EXPECT_TRUE(entry.setEnabled(false));
    EXPECT_FALSE(entry.isEnabled());
    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(Autostart, IsSwitchedOnAgainAfterItWasSwitchedOffElsewhere) {
    write("[Desktop Entry]\nExec=/old/ravelo\nHidden=true\nX-GNOME-Autostart-enabled=false\n");
    AutostartEntry entry(folder(), u"/usr/bin/ravelo"_s);
    EXPECT_TRUE(entry.setEnabled(true));
    EXPECT_TRUE(entry.isEnabled());
    EXPECT_TRUE(readFile(file())->contains("/usr/bin/ravelo"));
    EXPECT_FALSE(readFile(file())->contains("/old"));
}

TEST_F(Autostart, SaysWhatCouldNotBeDone) {
    QFile inTheWay(config_.filePath(u"config"_s));
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    const Result<void> on = AutostartEntry(folder(), u"/usr/bin/ravelo"_s).setEnabled(true);
    ASSERT_FALSE(on);
    EXPECT_TRUE(on.error().message.contains(file())) << qPrintable(on.error().message);
    ASSERT_TRUE(inTheWay.remove());

    ASSERT_TRUE(QDir().mkpath(file() + u"/a folder that is not empty"_s));
    const Result<void> off = AutostartEntry(folder(), u"/usr/bin/ravelo"_s).setEnabled(false);
    ASSERT_FALSE(off);
    EXPECT_TRUE(off.error().message.contains(file())) << qPrintable(off.error().message);
}

TEST_F(Autostart, HasNoFieldCodes) {
    // As the standard has it; GLib up to 2.74 at least finds no program with a percent sign at all.
    ASSERT_TRUE(AutostartEntry(folder(), u"/opt/100%u/ravelo"_s).setEnabled(true));
    EXPECT_TRUE(readFile(file())->contains("Exec=\"/opt/100%%u/ravelo\"\n"));
}

class StartedProgram : public Autostart, public testing::WithParamInterface<const char*> {};

/// The entry as GLib, the reader behind most desktops, understands it: does it start our program?
TEST_P(StartedProgram, IsTheOneAtThisPath) {
    const QString program = config_.filePath(QString::fromUtf8(GetParam()));
    ASSERT_TRUE(QDir().mkpath(QFileInfo(program).path()));
    QFile script(program);
    ASSERT_TRUE(script.open(QFile::WriteOnly));
    script.write("#!/bin/sh\necho \"started with $# arguments\"\n");
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    script.close();
    ASSERT_TRUE(AutostartEntry(folder(), program).setEnabled(true));
    EXPECT_TRUE(AutostartEntry(folder(), u"/elsewhere/ravelo"_s).isEnabled()) << "read otherwise";

    const std::string command = "gio launch " + file().toStdString();
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    ASSERT_TRUE(pipe);
    std::string output;
    for (int c = std::fgetc(pipe.get()); c != EOF; c = std::fgetc(pipe.get())) {
        output += static_cast<char>(c);
    }
    EXPECT_EQ(output, "started with 0 arguments\n");
}

INSTANTIATE_TEST_SUITE_P(Table, StartedProgram,
                         testing::Values("ravelo", "two words/ravelo", "a\"quote'/ravelo",
                                         "back\\slash\\n/ravelo", "$HOME`id`;&|<>*?#~()/ravelo",
                                         "ü中/ravelo", "tab\tand\nbreak/ravelo", "a=b/ravelo"));

} // namespace

} // namespace ravelo
