#include "monitor/UsageFile.h"

#include "monitor/MonitorFiles.h"
#include "monitor/UsageReaders.h"

#include <sys/stat.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr double nanosecond = 1e-9;

} // namespace

QByteArray usageFile(const QByteArray& home) {
    return monitorFile(home, "usage.json");
}

std::optional<PlanWindows> loadUsage(const QByteArray& home) {
    const std::optional<QByteArray> bytes = readMonitorFile(usageFile(home));
    return bytes ? readUsageFile(*bytes) : std::nullopt;
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
    return writeMonitorFile(usageFile(home), *kept);
}

} // namespace ravelo
