#include "app/FileArguments.h"

#include <QDir>
#include <QFileInfo>

#include <climits>
#include <filesystem>
#include <optional>
#include <system_error>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

bool isUrl(const QByteArray& name) {
    return name.startsWith("file:/");
}

/// The bytes of the path, of which a QUrl would replace those that are not UTF-8. Nothing if the
/// file is on another machine.
std::optional<QByteArray> pathOfUrl(const QByteArray& url) {
    QByteArray path = url.mid(url.indexOf(':') + 1);
    if (path.startsWith("//")) {
        const qsizetype end = path.indexOf('/', 2);
        const QByteArray host = path.mid(2, end - 2);
        if (end < 0 || (!host.isEmpty() && host != "localhost")) {
            return std::nullopt;
        }
        path = path.mid(end);
    }
    return QByteArray::fromPercentEncoding(path);
}

tl::unexpected<Error> refused(const char* why, const QByteArray& name) {
    constexpr qsizetype maxShown = 500;
    const QString shown = QString::fromUtf8(name);
    return failure(QString::fromLatin1(why) + u": "_s +
                   (shown.size() > maxShown ? shown.first(maxShown) + u'…' : shown));
}

/// `shown` is the name as the user typed it.
Result<QString> toPath(const QByteArray& name, const QByteArray& shown) {
    const std::optional<QByteArray> path = isUrl(name) ? pathOfUrl(name) : name;
    if (!path || !path->startsWith('/') || path->contains('\0')) {
        return refused("no file of this machine", shown);
    }
    if (path->size() >= PATH_MAX) { // No system call could name it.
        return refused("its path is too long", shown);
    }
    if (!path->isValidUtf8()) {
        return refused("its name is not UTF-8", shown);
    }
    return QString::fromUtf8(*path);
}

} // namespace

Result<QString> absolutePath(const QByteArray& name) {
    return toPath(name, name);
}

Result<QString> existingFile(const QByteArray& name, const QByteArray& folder) {
    const bool isAbsolute = name.startsWith('/') || isUrl(name);
    auto given = toPath(isAbsolute ? name : folder + '/' + name, name);
    if (!given) {
        return given;
    }
    const QString real = QFileInfo(*given).canonicalFilePath();
    if (name.isEmpty() || real.isEmpty()) {
        return refused("no such file", name);
    }
    // Normalized, so that a file has one path; but ".." after a symbolic link may lead elsewhere.
    const QString clean = QDir::cleanPath(*given);
    return QFileInfo(clean).canonicalFilePath() == real ? clean : real;
}

FoundFiles findFiles(const QList<QByteArray>& names) {
    std::error_code error;
    const QByteArray folder(std::filesystem::current_path(error).c_str()); // Qt's is text.
    FoundFiles found;
    for (const QByteArray& name : names) {
        if (const auto path = existingFile(name, folder)) {
            found.paths.append(*path);
        } else {
            found.errors.append(path.error().message);
        }
    }
    return found;
}

} // namespace ravelo
