#include "platform/freedesktop/FileTransferPortal.h"

#include "base/FileUrl.h"

#include <QPointer>
#include <QProcess>
#include <QTimer>

#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds timeOut{5};         // It may have thousands of files to look at.
constexpr qint64 largestAnswer = qint64(16) << 20; // Thousands of the longest paths.

QList<QUrl> filesIn(const QByteArray& output) {
    QList<QUrl> files;
    for (const QByteArray& path : output.split('\0')) {
        if (path.startsWith('/')) {
            files.append(fileUrl(path));
        }
    }
    return files;
}

/// A child and who waits for its answer. Deletes itself when the child has ended: the destructor of
/// QProcess would wait for that.
class Retrieval : public QProcess {
public:
    explicit Retrieval(std::function<void(const QList<QUrl>&)> done) : done_(std::move(done)) {
        setStandardErrorFile(nullDevice());
        setWorkingDirectory(u"/"_s);
        connect(this, &QProcess::readyReadStandardOutput, this, [this] {
            if (bytesAvailable() > largestAnswer) {
                giveUp();
            }
        });
        connect(this, &QProcess::finished, this, [this](int code, ExitStatus status) {
            finish(code == 0 && status == NormalExit ? filesIn(readAllStandardOutput())
                                                     : QList<QUrl>());
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
        QTimer::singleShot(timeOut, this, &Retrieval::giveUp);
    }

    void ask(const QString& program, const QByteArray& key) {
        start(program, QStringList());
        write(key);
        closeWriteChannel();
    }

    /// Nobody waits for the answer any more.
    void drop() {
        done_ = nullptr;
        kill();
    }

private:
    void giveUp() {
        kill();
        finish({});
    }

    void finish(const QList<QUrl>& files) {
        if (const auto tell = std::exchange(done_, nullptr)) {
            tell(files);
        }
    }

    std::function<void(const QList<QUrl>&)> done_;
};

} // namespace

FileTransferPortal::FileTransferPortal(QString program, const QProcessEnvironment& environment)
    : program_(std::move(program)) {
    for (const auto& name : {u"DBUS_SESSION_BUS_ADDRESS"_s, u"XDG_RUNTIME_DIR"_s}) {
        if (environment.contains(name)) {
            environment_.insert(name, environment.value(name));
        }
    }
    environment_.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
}

Handle FileTransferPortal::retrieve(const QByteArray& key,
                                    std::function<void(const QList<QUrl>&)> done) {
    const QPointer<Retrieval> retrieval = new Retrieval(std::move(done));
    retrieval->setProcessEnvironment(environment_);
    retrieval->ask(program_, key);
    return Handle([retrieval] {
        if (retrieval) {
            retrieval->drop();
        }
    });
}

} // namespace ravelo
