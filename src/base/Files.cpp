#include "base/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

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
    struct stat info {};

    return !path.contains('\0') && ::stat(path.constData(), &info) == 0 && S_ISREG(info.st_mode);
}

bool writeFileAtomically(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    // Before the first byte is in it: nobody else may read even half of it.
    return file.setPermissions(privateFile) && file.write(bytes) == bytes.size() && file.commit();
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
