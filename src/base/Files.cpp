#include "base/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace ravelo {

namespace {

constexpr auto privateFolder = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
constexpr int maxLinks = 40; ///< As in the kernel.
constexpr char temporarySuffix[] = ".XXXXXX";

bool isTaken(const QString& path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

/// 0 if it does not exist.
mode_t modeOf(const QByteArray& path) {
    struct stat info = {};
    return !path.contains('\0') && ::stat(path.constData(), &info) == 0 ? info.st_mode : 0;
}

std::optional<QByteArray> readEnd(int file, qint64 max) {
    struct stat info = {};
    if (fstat(file, &info) != 0 || !S_ISREG(info.st_mode)) {
        return std::nullopt;
    }
    const qint64 start = std::max<qint64>(info.st_size - max, 0);
    QByteArray bytes(std::min<qint64>(info.st_size, max), Qt::Uninitialized);
    qint64 done = 0;
    while (done < bytes.size()) {
        const ssize_t count = pread(file, bytes.data() + done,
                                    static_cast<size_t>(bytes.size() - done), start + done);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return std::nullopt;
        }
        if (count == 0) { // Truncated meanwhile.
            break;
        }
        done += count;
    }
    bytes.truncate(done);
    return bytes;
}

/// A message for the user, from errno.
Result<void> lastFailure() {
    switch (const int code = errno) {
    case ENOSPC:
    case EDQUOT:
        return failure(QCoreApplication::translate("ravelo::Files", "the disk is full"));
    case EROFS:
    case EACCES:
    case EPERM:
        return failure(QCoreApplication::translate("ravelo::Files", "the folder is read-only"));
    default:
        return failure(QString::fromStdString(std::generic_category().message(code)));
    }
}

/// Users who keep the file elsewhere and link to it want to keep the link.
QString behindLinks(QString path) {
    for (int i = 0; i < maxLinks; ++i) {
        const QString target = QFileInfo(path).symLinkTarget();
        if (target.isEmpty()) {
            break;
        }
        path = target;
    }
    return path;
}

/// Its name is one that `isTemporaryName` recognizes; -1 with errno on failure.
int openTemporary(const QByteArray& target, QByteArray& path) {
    while (true) {
        path = target + temporarySuffix;
        const int file = mkostemp(path.data(), O_CLOEXEC); // Made 0600.
        if (file < 0 || isTemporaryName(QString::fromLatin1(path))) {
            return file;
        }
        close(file);
        unlink(path.constData());
    }
}

Result<void> writeAll(int file, const QByteArray& bytes) {
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t count =
            write(file, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (count < 0 && errno != EINTR) {
            return lastFailure();
        }
        written += std::max<ssize_t>(count, 0);
    }
    return {};
}

/// Some file systems cannot sync, above all folders; that is not a failure of the disk.
bool isSynced(int file) {
    return fsync(file) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

Result<void> syncFolder(const QByteArray& path) {
    const QByteArray folder = path.first(path.lastIndexOf('/') + 1) + '.';
    const int file = open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0) {
        // Writable but not readable, or gone.
        return errno == EACCES || errno == ENOENT ? Result<void>() : lastFailure();
    }
    const bool synced = isSynced(file);
    Result<void> done = synced ? Result<void>() : lastFailure();
    close(file);
    return done;
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

Presence presenceOf(const QByteArray& path) {
    struct stat info {};

    if (path.isEmpty() || path.contains('\0')) {
        return Presence::gone;
    }
    if (::stat(path.constData(), &info) == 0) {
        return Presence::there;
    }
    return errno == ENOENT || errno == ENOTDIR ? Presence::gone : Presence::unknown;
}

bool isRegularFile(const QByteArray& path) {
    return S_ISREG(modeOf(path));
}

bool isFolder(const QByteArray& path) {
    return S_ISDIR(modeOf(path));
}

bool isPrivateFolder(const QByteArray& path) {
    struct stat info = {};
    return ::lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) &&
           info.st_uid == ::geteuid() && (info.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

std::optional<QByteArray> readFileEnd(const QByteArray& path, qint64 max) {
    const int file = open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (file < 0) {
        return std::nullopt;
    }
    std::optional<QByteArray> bytes = readEnd(file, max);
    close(file);
    return bytes;
}

Result<void> writeFileAtomically(const QString& path, const QByteArray& bytes) {
    const QByteArray target = QFile::encodeName(behindLinks(path));
    QByteArray temporary;
    const int file = openTemporary(target, temporary);
    if (file < 0) {
        return lastFailure();
    }
    Result<void> done = writeAll(file, bytes);
    if (done && !isSynced(file)) {
        done = lastFailure();
    }
    if (close(file) != 0 && done) {
        done = lastFailure();
    }
    if (done && rename(temporary.constData(), target.constData()) != 0) {
        done = lastFailure();
    }
    if (!done) {
        unlink(temporary.constData());
        return done;
    }
    return syncFolder(target);
}

Result<void> removeWithTarget(const QString& path) {
    for (const QString& one : {behindLinks(path), path}) {
        if (!QFile::remove(one) && isTaken(one)) {
            return failure(
                QCoreApplication::translate("ravelo::Files", "%1 could not be removed").arg(one));
        }
    }
    return {};
}

Result<void> syncFolderOf(const QString& path) {
    return syncFolder(QFile::encodeName(path));
}

bool isTemporaryName(const QString& name) {
    // Also called at exit, when a static regular expression would be gone.
    constexpr qsizetype length = sizeof(temporarySuffix) - 1;
    const auto isLetter = [](QChar c) {
        return c.unicode() < 0x80 && c.isLetterOrNumber();
    };
    if (name.size() < length || name[name.size() - length] != u'.') {
        return false;
    }
    // A word or a date, such as in "store.json.backup", is the user's own.
    const QStringView letters = QStringView(name).last(length - 1);
    return std::ranges::all_of(letters, isLetter) &&
           std::ranges::any_of(letters, [](QChar c) { return c.isLower(); }) &&
           std::ranges::any_of(letters, [](QChar c) { return c.isUpper(); });
}

void makePrivateFolder(const QString& path) {
    if (QDir().mkpath(path)) {
        QFile::setPermissions(path, privateFolder);
    }
}

Result<QString> setAsideUnreadable(const QString& path) {
    if (!isTaken(path)) {
        return QString();
    }
    QString aside = path + QStringLiteral(".unreadable");
    for (int number = 2; isTaken(aside); ++number) {
        aside = path + QStringLiteral(".unreadable%1").arg(number);
    }
    const QByteArray from = QFile::encodeName(path);
    const QByteArray to = QFile::encodeName(aside);
    // A hard link needs neither space nor read permission.
    if (linkat(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), AT_SYMLINK_FOLLOW) == 0) {
        chmod(to.constData(), S_IRUSR | S_IWUSR);
        return aside;
    }
    if (const auto bytes = readFile(path); bytes && writeFileAtomically(aside, *bytes)) {
        return aside;
    }
    if (rename(from.constData(), to.constData()) != 0) {
        return tl::unexpected(lastFailure().error());
    }
    return aside;
}

} // namespace ravelo
