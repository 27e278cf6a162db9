#include "platform/freedesktop/portals/FileTransferPortal.h"

#include "base/FileUrl.h"
#include "base/ProgramRun.h"
#include "platform/freedesktop/portals/PortalProgram.h"

#include <utility>

namespace ravelo {

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
    : program_(std::move(program)), environment_(portalEnvironment(environment)) {}

Handle FileTransferPortal::retrieve(const QByteArray& key,
                                    std::function<void(const QList<QUrl>&)> done) {
    return runProgram({program_, {}, environment_, Secret(key), timeout, maxOutput}, &children_,
                      [done = std::move(done)](const std::optional<QByteArray>& output) {
                          done(output ? filesIn(*output) : QList<QUrl>());
                      });
}

} // namespace ravelo
