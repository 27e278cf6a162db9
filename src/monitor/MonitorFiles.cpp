#include "monitor/MonitorFiles.h"

#include "base/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace ravelo {

using namespace Qt::StringLiterals;

QByteArray monitorFile(const QByteArray& home, const QByteArray& name) {
    return home + "/.ravelo/" + name;
}

QByteArray monitorCache(const QByteArray& home, const QByteArray& name) {
    const QByteArray chosen = qgetenv("XDG_CACHE_HOME");
    return (chosen.startsWith('/') ? chosen : home + "/.cache") + "/ravelo/" + name;
}

Result<void> eraseMonitorCache(const QByteArray& home) {
    const QDir folder(QFileInfo(QFile::decodeName(monitorCache(home, {}))).path());
    Result<void> done;
    // Killed writes leave files that begin like these.
    for (const QFileInfo& one :
         folder.entryInfoList({u"session.json*"_s, u"pace.json*"_s}, QDir::Files)) {
        QFile file(one.filePath());
        if (!file.remove()) {
            done = failure(u"cannot remove %1: %2"_s.arg(file.fileName(), file.errorString()));
        }
    }
    QDir().rmdir(folder.path());
    return done;
}

std::optional<QByteArray> readMonitorFile(const QByteArray& path) {
    constexpr qint64 maxSize = qint64(1) << 20;
    auto bytes = readFileEnd(path, maxSize + 1);
    return bytes && bytes->size() <= maxSize ? std::move(bytes) : std::nullopt;
}

Result<void> writeMonitorFile(const QByteArray& path, const QByteArray& bytes) {
    const QString name = QFile::decodeName(path);
    const QString folder = QFileInfo(name).path();
    if (!QFile::exists(folder)) { // Otherwise its permissions are the choice of whoever created it.
        makePrivateFolder(folder);
    }
    return writeFileAtomically(name, bytes).map_error([&](const Error& error) {
        return Error{u"cannot write %1: %2"_s.arg(name, error.message)};
    });
}

} // namespace ravelo
