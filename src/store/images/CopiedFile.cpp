#include "store/images/CopiedFile.h"

#include "base/FileUrl.h"
#include "base/UriList.h"
#include "decode/Formats.h"
#include "platform/Pasteboard.h"
#include "platform/TimedJob.h"
#include "store/history/ClipForms.h"

#include <QFile>
#include <QSysInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravelo {

namespace {

constexpr Seconds timeout{2};
constexpr qint64 maxBytes = qint64{64} * 1024 * 1024;
constexpr qint64 beginning = 4096;

CopiedContents read(const QByteArray& path) {
    // A pipe or a device could block for ever.
    const int descriptor = open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) {
        return {};
    }
    struct stat info = {};
    QFile file;
    if (fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode) ||
        !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        close(descriptor);
        return {};
    }
    const QByteArray begin = file.read(beginning);
    if (!decode::isRaster(begin)) {
        return {};
    }
    return info.st_size > maxBytes ? CopiedContents{{}, info.st_size}
                                   : CopiedContents{begin + file.read(maxBytes)};
}

} // namespace

QByteArray copiedFile(const PasteboardSnapshot& contents) {
    const auto list = contents.answers.value(uriListType).value_or(QByteArray());
    return filePath(localFiles(list, QSysInfo::machineHostName().toUtf8()).value(0));
}

Handle readCopiedFile(DetachedJobs& jobs, Scheduler& scheduler, const QByteArray& path,
                      std::function<void(const CopiedContents&)> done) {
    return runTimed<CopiedContents>(
        jobs, scheduler, timeout, [path] { return read(path); },
        [done = std::move(done)](const std::optional<CopiedContents>& contents) {
            done(contents.value_or(CopiedContents()));
        });
}

} // namespace ravelo
