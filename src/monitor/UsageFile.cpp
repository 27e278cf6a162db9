#include "monitor/UsageFile.h"

#include "base/Files.h"
#include "monitor/UsageReaders.h"

#include <QFile>

#include <sys/stat.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxSize = qint64(1) << 20;
constexpr double nanosecond = 1e-9;

QByteArray folder(const QByteArray& home) {
    return home + "/.ravelo";
}

} // namespace

QByteArray usageFile(const QByteArray& home) {
    return folder(home) + "/usage.json";
}

std::optional<PlanWindows> loadUsage(const QByteArray& home) {
    const std::optional<QByteArray> bytes = readFileEnd(usageFile(home), maxSize + 1);
    return bytes && bytes->size() <= maxSize ? readUsageFile(*bytes) : std::nullopt;
}

std::optional<Date> usageWritten(const QByteArray& home) {
    struct stat info = {};
    if (stat(usageFile(home).constData(), &info) != 0) {
        return std::nullopt;
    }
    const double seconds = static_cast<double>(info.st_mtim.tv_sec) +
                           static_cast<double>(info.st_mtim.tv_nsec) * nanosecond;
    return Date{seconds - referenceInstant};
}

Result<void> storeUsage(const QByteArray& home, const QByteArray& statusLine) {
    const std::optional<QByteArray> kept = usageFileOf(statusLine);
    if (!kept) {
        return failure(u"the input has no rate limits"_s);
    }
    const QString own = QFile::decodeName(folder(home));
    if (!QFile::exists(own)) { // Otherwise its permissions are the choice of whoever created it.
        makePrivateFolder(own);
    }
    const QString path = QFile::decodeName(usageFile(home));
    return writeFileAtomically(path, *kept).map_error([&](const Error& error) {
        return Error{u"cannot write %1: %2"_s.arg(path, error.message)};
    });
}

} // namespace ravelo
