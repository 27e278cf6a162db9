#include "platform/freedesktop/portals/FileTransferPortal.h"

#include "base/FileUrl.h"
#include "base/ProgramRun.h"

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds timeout{5};     // Enough for thousands of files.
constexpr qint64 maxOutput = qint64(16) << 20; // Thousands of the longest paths.

QList<QUrl> filesIn(const QByteArray& output) {
    QList<QUrl> files;
    for (const QByteArray& path : output.split('\0')) {
        if (path.startsWith('/')) {
            files.append(fileUrl(path));
        }
    }
    return files;
}

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
    return runProgram({program_, {}, environment_, Secret(key), timeout, maxOutput}, &children_,
                      [done = std::move(done)](const std::optional<QByteArray>& output) {
                          done(output ? filesIn(*output) : QList<QUrl>());
                      });
}

} // namespace ravelo
