#include "base/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravelo {

namespace {

constexpr auto privateFile = QFile::ReadOwner | QFile::WriteOwner;
constexpr auto privateFolder = privateFile | QFile::ExeOwner;

bool isTaken(const QString& path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

/// 0 where nothing is.
mode_t modeOf(const QByteArray& path) {
    struct stat info = {};
    return !path.contains('\0') && ::stat(path.constData(), &info) == 0 ? info.st_mode : 0;
}

std::optional<QByteArray> readEnd(int file, qint64 most) {
    struct stat info = {};
    if (fstat(file, &info) != 0 || !S_ISREG(info.st_mode)) {
        return std::nullopt;
    }
    const qint64 start = std::max<qint64>(info.st_size - most, 0);
    QByteArray bytes(std::min<qint64>(info.st_size, most), Qt::Uninitialized);
    qint64 taken = 0;
    while (taken < bytes.size()) {
        const ssize_t count = pread(file, bytes.data() + taken,
                                    static_cast<size_t>(bytes.size() - taken), start + taken);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return std::nullopt;
        }
        if (count == 0) { // It was cut meanwhile.
            break;
        }
        taken += count;
    }
    bytes.truncate(taken);
    return bytes;
}

} // namespace

std::optional<QByteArray> readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return std::nullopt;
    }
    return bytes;
}

bool fileExists(const QByteArray& path) {
    return !path.contains('\0') && ::access(path.constData(), F_OK) == 0;
}

bool isRegularFile(const QByteArray& path) {
    return S_ISREG(modeOf(path));
}

bool isFolder(const QByteArray& path) {
    return S_ISDIR(modeOf(path));
}

std::optional<QByteArray> readFileEnd(const QByteArray& path, qint64 most) {
    const int file = open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (file < 0) {
        return std::nullopt;
    }
    std::optional<QByteArray> bytes = readEnd(file, most);
    close(file);
    return bytes;
}

bool writeFileAtomically(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    // Before the first byte is in it: nobody else may read even half of it.
    // And flushed: commit() does not see a disk that is full only by then, and leaves an empty
    // file.
    return file.setPermissions(privateFile) && file.write(bytes) == bytes.size() && file.flush() &&
           file.commit();
}

void makePrivateFolder(const QString& path) {
    if (QDir().mkpath(path)) {
        QFile::setPermissions(path, privateFolder);
    }
}

void setAsideUnreadable(const QString& path) {
    if (!isTaken(path)) {
        return;
    }
    QString aside = path + QStringLiteral(".unreadable");
    for (int number = 2; isTaken(aside); ++number) {
        aside = path + QStringLiteral(".unreadable%1").arg(number);
    }
    if (QFile::copy(path, aside)) {
        QFile::setPermissions(aside, privateFile);
    } else {
        QFile::rename(path, aside);
    }
}

} // namespace ravelo
