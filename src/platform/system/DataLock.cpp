#include "platform/system/DataLock.h"

#include "base/Files.h"
#include "base/Uuid.h"
#include "platform/system/MachineId.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr int maxAttempts = 10; ///< Others may replace the file between our steps.

// What an earlier version takes for another machine, and shows to the user.
constexpr QLatin1StringView encryptedHost(" (a newer Ravelo, which has encrypted the data)");
constexpr QByteArrayView encryptedMachine(" encrypted");

/// The writer of a lock. The lines are those of QLockFile and one of our own.
struct Owner {
    qint64 process = 0;
    QString host;
    QByteArray machine;

    explicit Owner(const QByteArray& bytes) {
        const QList<QByteArray> lines = bytes.split('\n');
        process = lines.value(0).toLongLong();
        host = QString::fromUtf8(lines.value(2)).section(encryptedHost, 0, 0);
        machine = lines.value(3);
        if (machine.endsWith(encryptedMachine)) {
            machine.chop(encryptedMachine.size());
        }
    }

    [[nodiscard]] bool isElsewhere() const {
        if (process <= 0) {
            return false; // It was never written.
        }
        const QByteArray here = machineId();
        return machine.isEmpty() || here.isEmpty() ? host != QSysInfo::machineHostName()
                                                   : machine != here;
    }

    [[nodiscard]] bool mayLive() const {
        return process > 0 && (kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM);
    }
};

enum class Data { plain, encrypted };

QByteArray newContents(Data data) {
    const bool marked = data == Data::encrypted;
    const QList<QByteArray> lines = {QByteArray::number(QCoreApplication::applicationPid()),
                                     "ravelo",
                                     QSysInfo::machineHostName().toUtf8() +
                                         (marked ? QByteArray(encryptedHost.data()) : QByteArray()),
                                     machineId() +
                                         (marked ? encryptedMachine.toByteArray() : QByteArray()),
                                     QSysInfo::bootUniqueId(),
                                     uuidText(QUuid::createUuid()).toLatin1(),
                                     {}};
    return lines.join('\n');
}

QByteArray readAll(int file) {
    QByteArray bytes(4096, Qt::Uninitialized);
    const ssize_t count = pread(file, bytes.data(), static_cast<size_t>(bytes.size()), 0);
    bytes.truncate(std::max<ssize_t>(count, 0));
    return bytes;
}

bool isStillAt(int file, const QByteArray& path) {
    struct stat opened = {};
    struct stat there = {};
    return fstat(file, &opened) == 0 && stat(path.constData(), &there) == 0 &&
           opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

tl::unexpected<Error> heldBy(const Owner& owner, const QString& folder) {
    return owner.isElsewhere()
               ? failure(u"Ravelo runs on %1 (process %2) and uses %3. "_s.arg(owner.host)
                             .arg(owner.process)
                             .arg(folder) +
                         u"If it has ended there, take over: ravelo --take-over"_s)
               : failure(u"Ravelo runs in another session and uses "_s + folder);
}

} // namespace

DataLock::DataLock(QString path, QString data, QString keyFile)
    : path_(std::move(path)), data_(std::move(data)), keyFile_(std::move(keyFile)) {}

DataLock::~DataLock() {
    release();
}

void DataLock::release() {
    const std::scoped_lock lock(mutex_);
    if (file_ >= 0 && !isEncrypted() && readFile(path_) == ours_) {
        QFile::remove(path_);
    }
    letGo();
    lost_ = Error{QStringLiteral("Ravelo ends")};
}

Result<void> DataLock::claim(Claim claim) {
    const std::scoped_lock lock(mutex_);
    return acquire(claim);
}

Result<void> DataLock::acquire(Claim claim) {
    const QByteArray path = QFile::encodeName(path_);
    const QString folder = QFileInfo(path_).path();
    makePrivateFolder(folder);
    for (int attempt = 0; attempt < maxAttempts; ++attempt) {
        const int file = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
        if (file < 0) {
            return {};
        }
        const bool locked = flock(file, LOCK_EX | LOCK_NB) == 0;
        const bool busy = !locked && errno == EWOULDBLOCK;
        const Owner owner(readAll(file));
        const bool held = busy || owner.isElsewhere() || (!locked && owner.mayLive());
        if (held && claim == Claim::ifFree && isStillAt(file, path)) {
            close(file);
            return heldBy(owner, folder);
        }
        if (held || !isStillAt(file, path)) {
            if (held && claim == Claim::takeOver) {
                unlink(path.constData());
            }
            close(file);
            continue;
        }
        return keep(file);
    }
    return failure(u"%1 changes all the time"_s.arg(path_));
}

bool DataLock::isEncrypted() const {
    return !keyFile_.isEmpty() && QFile::exists(keyFile_);
}

void DataLock::followKeyFile() {
    const std::scoped_lock lock(mutex_);
    if (file_ < 0 || readFile(path_) != ours_) {
        return;
    }
    // Never empty in between: then it would count as free.
    const QByteArray contents = newContents(isEncrypted() ? Data::encrypted : Data::plain);
    if (pwrite(file_, contents.constData(), static_cast<size_t>(contents.size()), 0) ==
            contents.size() &&
        ftruncate(file_, contents.size()) == 0) {
        ours_ = contents;
        fsync(file_);
    }
}

Result<void> DataLock::keep(int file) {
    const QByteArray contents = newContents(isEncrypted() ? Data::encrypted : Data::plain);
    fchmod(file, S_IRUSR | S_IWUSR); // Older versions created it readable for others.
    if (ftruncate(file, 0) != 0 ||
        pwrite(file, contents.constData(), static_cast<size_t>(contents.size()), 0) !=
            contents.size()) {
        close(file); // For example a full disk: try again later.
        return {};
    }
    file_ = file;
    ours_ = contents;
    return {};
}

Result<void> DataLock::check() {
    const std::scoped_lock lock(mutex_);
    if (lost_) {
        return tl::unexpected(*lost_);
    }
    const std::optional<QByteArray> found = readFile(path_);
    Result<void> allowed;
    if (ours_.isEmpty()) {
        allowed = acquire(Claim::ifFree);
    } else if (found && *found != ours_) {
        allowed = failure(
            QCoreApplication::translate("ravelo::DataLock", "another Ravelo has taken over"));
    } else if (!found && presenceOf(QFile::encodeName(path_)) == Presence::gone) {
        if (presenceOf(QFile::encodeName(data_)) == Presence::gone) {
            letGo(); // The whole folder was removed, so nobody else has data in it.
            allowed = acquire(Claim::ifFree);
        } else {
            allowed =
                failure(QCoreApplication::translate("ravelo::DataLock", "its lock was removed"));
        }
    }
    if (!allowed) {
        lost_ = allowed.error();
    }
    return allowed;
}

void DataLock::letGo() {
    if (file_ >= 0) {
        close(std::exchange(file_, -1));
    }
    ours_.clear();
}

bool DataLock::mayBeHeld(const QString& path) {
    return Owner(readFile(path).value_or(QByteArray())).mayLive();
}

} // namespace ravelo
