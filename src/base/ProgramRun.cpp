#include "base/ProgramRun.h"

#include <QPointer>
#include <QProcess>
#include <QTimer>

#include <array>
#include <utility>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// The end to read from of a pipe that holds `input`, or -1. QProcess would keep a copy of what is
/// written to it.
int pipeWith(const Secret& input) {
    std::array<int, 2> ends = {};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return -1;
    }
    const QByteArray bytes = input.bytes();
    const bool isWhole = write(ends[1], bytes.constData(), bytes.size()) == bytes.size();
    close(ends[1]);
    if (!isWhole) {
        close(ends[0]);
        return -1;
    }
    fcntl(ends[0], F_SETFL, 0); // Programs expect input that blocks.
    return ends[0];
}

/// Between fork and exec. A limit of 1 also stops dumps that are piped to a program; see core(5).
void prepareChild(int input) {
    const rlimit noDumps = {1, 1};
    setrlimit(RLIMIT_CORE, &noDumps);
    dup2(input, STDIN_FILENO);
}

/// Deletes itself when the child has ended, because the destructor of QProcess waits for that.
class Child : public QProcess {
public:
    Child(const ProgramRun& run, QObject* owner,
          std::function<void(std::optional<QByteArray>)> done)
        : QProcess(owner), done_(std::move(done)) {
        setInputChannelMode(ForwardedInputChannel);
        setStandardErrorFile(nullDevice());
        setWorkingDirectory(u"/"_s);
        setProcessEnvironment(run.environment);
        connect(this, &QProcess::readyReadStandardOutput, this, [this, max = run.maxOutput] {
            if (bytesAvailable() > max) {
                giveUp();
            }
        });
        connect(this, &QProcess::finished, this, [this](int code, ExitStatus status) {
            finish(code == 0 && status == NormalExit ? std::optional(readAllStandardOutput())
                                                     : std::nullopt);
            deleteLater();
        });
        // Queued, because it may come from within start().
        connect(
            this, &QProcess::errorOccurred, this,
            [this](ProcessError error) {
                if (error == FailedToStart) {
                    finish({});
                    deleteLater();
                }
            },
            Qt::QueuedConnection);
        QTimer::singleShot(run.timeout, this, &Child::giveUp);
    }

    ~Child() override {
        disconnect();
        kill();
        waitForFinished(); // QProcess would, too, but with a warning.
    }

    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    void run(const ProgramRun& run) {
        const int input = pipeWith(run.input);
        if (input < 0) {
            Q_EMIT errorOccurred(FailedToStart);
            return;
        }
        setChildProcessModifier([input] { prepareChild(input); });
        start(run.path, run.arguments);
        ::close(input);
    }

    void drop() {
        done_ = nullptr;
        kill();
    }

private:
    void giveUp() {
        kill();
        finish({});
    }

    void finish(std::optional<QByteArray> output) {
        if (const auto done = std::exchange(done_, nullptr)) {
            done(std::move(output));
        }
    }

    std::function<void(std::optional<QByteArray>)> done_;
};

} // namespace

Handle runProgram(const ProgramRun& run, QObject* owner,
                  std::function<void(std::optional<QByteArray>)> done) {
    QPointer<Child> child = new Child(run, owner, std::move(done));
    child->run(run);
    return Handle([child = std::move(child)] {
        if (child) {
            child->drop();
        }
    });
}

} // namespace ravelo
