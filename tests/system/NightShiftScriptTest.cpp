#include "platform/system/NightShiftScript.h"

#include "base/Files.h"
#include "support/Eventually.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;
using namespace std::string_literals;

namespace {

class NightShiftScriptTest : public testing::Test {
protected:
    NightShiftScriptTest() {
        EXPECT_TRUE(QDir().mkpath(home_));
        environment_.insert(u"HOME"_s, home_);
        environment_.insert(u"PATH"_s, qEnvironmentVariable("PATH"));
    }

    /// A program that writes the output of `print` to a file of its own.
    static void install(const QString& path, const QByteArray& print) {
        makeProgram(path, print + " > \"$HOME/$$\"\nmv \"$HOME/$$\" \"$HOME/$$.out\"\n");
    }

    /// The output of `count` programs.
    [[nodiscard]] std::vector<std::string> printed(qsizetype count) const {
        QFileInfoList files;
        EXPECT_TRUE(eventually([&] {
            files = QDir(home_, u"*.out"_s).entryInfoList();
            return files.size() == count;
        }));
        std::vector<std::string> all;
        for (const QFileInfo& file : files) {
            all.push_back(readFile(file.filePath()).value_or(QByteArray()).toStdString());
        }
        return all;
    }

    QTemporaryDir folder_;
    QString home_ = folder_.filePath(u"a home"_s);
    QProcessEnvironment environment_;
};

TEST_F(NightShiftScriptTest, isRunByTheShellAtEachStart) {
    const QString shell = folder_.filePath(u"zsh"_s);
    install(shell, "streams=$(readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2)\n"
                   "{ cat /proc/$$/cmdline /proc/$$/environ; echo \"$streams\"; }");
    qputenv("QT_QPA_PLATFORM", "of this program");
    NightShiftScript script(environment_, shell);
    script.start();
    script.start();

    QStringList parts = {u"/bin/sh"_s, shell, u"-lc"_s, u"\"$HOME/.qvx/bin/turno-noite\""_s};
    parts += environment_.toStringList();
    std::string expected = (parts.join(QChar::Null) + QChar::Null).toStdString();
    for (const char* stream : {"0", "1", "2"}) {
        expected += std::filesystem::read_symlink("/proc/self/fd/"s + stream).string() + '\n';
    }
    EXPECT_EQ(printed(2), std::vector(2, expected));
    EXPECT_TRUE(eventually([] {
        siginfo_t child = {};
        return waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == -1 && errno == ECHILD;
    })) << "a zombie";
}

TEST_F(NightShiftScriptTest, runsWithoutThatShellAndOutlivesTheProgram) {
    const QByteArray gate = (home_ + u"/gate"_s).toLocal8Bit();
    ASSERT_EQ(mkfifo(gate, 0600), 0);
    install(home_ + u"/.qvx/bin/turno-noite"_s, "read said < \"$HOME/gate\"; echo \"$said\"");
    const pid_t program = fork();
    if (program == 0) {
        NightShiftScript(environment_, u"/nowhere/zsh"_s).start();
        pause();
    }
    int door = -1;
    EXPECT_TRUE(eventually([&] { return (door = open(gate, O_WRONLY | O_NONBLOCK)) >= 0; }));
    kill(program, SIGKILL);
    ASSERT_EQ(waitpid(program, nullptr, 0), program);
    EXPECT_EQ(write(door, "it lives\n", 9), 9);
    close(door);
    EXPECT_EQ(printed(1), std::vector<std::string>{"it lives\n"});
}

} // namespace

} // namespace ravelo
