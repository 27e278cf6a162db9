#include "platform/freedesktop/session/AutostartEntry.h"

#include "base/Files.h"
#include "fakes/FakeDetachedJobs.h"
#include "fakes/ManualScheduler.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <cstdio>
#include <memory>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class Autostart : public testing::Test {
protected:
    [[nodiscard]] QString folder() const { return config_.filePath(u"config/autostart"_s); }

    [[nodiscard]] QString file() const { return folder() + u"/ravelo.desktop"_s; }

    void write(const QByteArray& text) const { makeFile(file(), text); }

    [[nodiscard]] AutostartEntry entryFor(const QString& program) {
        return AutostartEntry(folder(), program, jobs_);
    }

    std::string repair(AutostartEntry& entry) {
        std::string end = "nothing to mend";
        entry.repair([&](const Result<void>& mended) { end = mended ? "mended" : "failed"; });
        scheduler_.advance(Seconds(0));
        return end;
    }

    QTemporaryDir config_;
    ManualScheduler scheduler_;
    FakeDetachedJobs jobs_{scheduler_};
};

TEST_F(Autostart, IsEnabledAsTheDesktopSeesIt) {
    const AutostartEntry entry = entryFor(u"/here, that's us/ravelo"_s);
    EXPECT_FALSE(entry.isEnabled()) << "there is no file";
    const QByteArray group = "[Desktop Entry]\n";
    const std::pair<QByteArray, bool> cases[] = {
        {"", false},
        {group + "Name=Ravelo\n", false},
        {group + "Exec=/nowhere/ravelo\n", true},
        {group + "Exec=\"/here, that's us/ravelo\"\n", true},
        {"# by hand\n\n" + group + "Exec = \"/bin/sh\" -c true", true},
        {group + "Exec=sh -c ravelo\n", true},
        {group + "Exec=\n", false},
        {"[Desktop Entry]\r\nExec=/bin/sh\r\nHidden=true\r\n", false},
        {group + "Exec=/bin/sh\nHidden=false\n", true},
        {group + "Exec=/bin/sh\nX-GNOME-Autostart-enabled=false\n", false},
        {group + "Exec=/bin/sh\nX-GNOME-Autostart-enabled=true\n", true},
        {group + "Exec=/bin/sh\n[Desktop Action x]\nHidden=true\n", true},
        {"[Other]\nExec=/bin/sh\n", false},
    };
    for (const auto& [text, enabled] : cases) {
        write(text);
        EXPECT_EQ(entry.isEnabled(), enabled) << text.toStdString();
    }
}

TEST_F(Autostart, RewritesAnEntryWhoseProgramIsMissing) {
    AutostartEntry entry = entryFor(u"/usr/bin/ravelo"_s);
    EXPECT_EQ(repair(entry), "nothing to mend");
    EXPECT_FALSE(QFile::exists(file())) << "it was off";
    for (const char* kept : {"[Desktop Entry]\nExec=/gone/ravelo\nHidden=true\n",
                             "[Desktop Entry]\nExec=/bin/sh\n", "[Desktop Entry]\nExec=sh\n"}) {
        write(kept);
        EXPECT_EQ(repair(entry), "nothing to mend");
        EXPECT_EQ(readFile(file()), kept);
    }
    for (const char* stale : {"/gone/ravelo", "no-such-program"}) {
        write(QByteArray("[Desktop Entry]\nExec=") + stale + "\n");
        EXPECT_EQ(repair(entry), "mended");
        EXPECT_TRUE(entry.isEnabled());
        EXPECT_TRUE(readFile(file())->contains("Exec=\"/usr/bin/ravelo\"\n"));
    }
}

TEST_F(Autostart, IsOffIfItCannotBeRepaired) {
    // What is written beside a file first would have a name that no file can have.
    const QString longest = config_.filePath(QString(255, u'x'));
    ASSERT_TRUE(
        writeFileAtomically(config_.filePath(u"entry"_s), "[Desktop Entry]\nExec=/gone/x\n"));
    ASSERT_TRUE(QFile::rename(config_.filePath(u"entry"_s), longest));
    ASSERT_TRUE(QDir().mkpath(folder()) && QFile::link(longest, file()));
    AutostartEntry entry = entryFor(u"/usr/bin/ravelo"_s);
    EXPECT_EQ(repair(entry), "failed");
    EXPECT_FALSE(entry.isEnabled());
}

TEST_F(Autostart, DoesNotWaitForAProgramOnADeadMount) {
    write("[Desktop Entry]\nExec=/gone/ravelo\n");
    AutostartEntry entry = entryFor(u"/usr/bin/ravelo"_s);
    entry.repair([](const Result<void>&) { FAIL() << "mended what may still be there"; });
    EXPECT_TRUE(entry.isEnabled()) << "it counts until its program is known to be gone";
    ASSERT_TRUE(entry.setEnabled(false)); // The user is faster than the answer.
    scheduler_.advance(Seconds(1));
    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(Autostart, IsSwitchedOffAndOnAgain) {
    AutostartEntry entry = entryFor(u"/usr/bin/ravelo"_s);
    EXPECT_TRUE(entry.setEnabled(false)) << "off already";
    write("[Desktop Entry]\nExec=/old/ravelo\nHidden=true\nX-GNOME-Autostart-enabled=false\n");
    EXPECT_TRUE(entry.setEnabled(true)) << "it was disabled elsewhere";
    EXPECT_TRUE(entry.isEnabled());
    EXPECT_TRUE(readFile(file())->contains("/usr/bin/ravelo"));
    EXPECT_FALSE(readFile(file())->contains("/old"));
    EXPECT_TRUE(entry.setEnabled(false));
    EXPECT_FALSE(entry.isEnabled());
    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(Autostart, ReportsErrors) {
    QFile inTheWay(config_.filePath(u"config"_s));
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    const Result<void> on = entryFor(u"/usr/bin/ravelo"_s).setEnabled(true);
    ASSERT_FALSE(on);
    EXPECT_TRUE(on.error().message.contains(file())) << qPrintable(on.error().message);
    ASSERT_TRUE(inTheWay.remove());

    ASSERT_TRUE(QDir().mkpath(file() + u"/a folder that is not empty"_s));
    const Result<void> off = entryFor(u"/usr/bin/ravelo"_s).setEnabled(false);
    ASSERT_FALSE(off);
    EXPECT_TRUE(off.error().message.contains(file())) << qPrintable(off.error().message);
}

TEST_F(Autostart, HasNoFieldCodes) {
    // As the standard has it; GLib up to 2.74 at least finds no program with a percent sign at all.
    ASSERT_TRUE(entryFor(u"/opt/100%u/ravelo"_s).setEnabled(true));
    EXPECT_TRUE(readFile(file())->contains("Exec=\"/opt/100%%u/ravelo\"\n"));
}

class StartedProgram : public Autostart, public testing::WithParamInterface<const char*> {};

/// GLib, which most desktops use, starts our program by the entry.
TEST_P(StartedProgram, IsStartedByTheEntry) {
    const QString program = makeProgram(config_.filePath(QString::fromUtf8(GetParam())),
                                        "echo \"started with $# arguments\"\n");
    ASSERT_TRUE(entryFor(program).setEnabled(true));
    EXPECT_TRUE(entryFor(u"/elsewhere/ravelo"_s).isEnabled()) << "read otherwise";

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
