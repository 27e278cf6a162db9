#include "base/UriList.h"

#include "base/FileUrl.h"

#include <algorithm>
#include <cctype>

namespace ravelo {

namespace {

bool isSame(QByteArrayView a, QByteArrayView b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// The value of a hexadecimal digit, or -1.
int hexDigit(char digit) {
    const auto c = static_cast<unsigned char>(digit);
    if (std::isxdigit(c) == 0) {
        return -1;
    }
    return std::isdigit(c) != 0 ? c - '0' : std::tolower(c) - 'a' + 10;
}

/// A percent sign without two digits stands for itself.
QByteArray decoded(QByteArrayView text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool encoded = text[at] == '%' && at + 2 < text.size() &&
                             hexDigit(text[at + 1]) >= 0 && hexDigit(text[at + 2]) >= 0;
        if (encoded) {
            bytes.append(static_cast<char>(hexDigit(text[at + 1]) * 16 + hexDigit(text[at + 2])));
            at += 2;
        } else {
            bytes.append(text[at]);
        }
    }
    return bytes;
}

/// Absolute and without a trailing slash; empty if it is not a path.
QByteArray pathOf(QByteArrayView address, QByteArrayView hostName) {
    constexpr QByteArrayView scheme("file:");
    if (!isSame(address.first(std::min(scheme.size(), address.size())), scheme)) {
        return {};
    }
    QByteArrayView rest = address.sliced(scheme.size());
    if (rest.startsWith("//")) {
        rest = rest.sliced(2);
        const qsizetype slash = rest.indexOf('/');
        const QByteArrayView host = slash < 0 ? rest : rest.first(slash);
        if (slash < 0 ||
            (!host.isEmpty() && !isSame(host, "localhost") && !isSame(host, hostName))) {
            return {};
        }
        rest = rest.sliced(slash);
    }
    QByteArray path = decoded(rest);
    while (path.size() > 1 && path.endsWith('/')) {
        path.chop(1);
    }
    return path.startsWith('/') && !path.contains('\0') ? path : QByteArray();
}

} // namespace

QList<QUrl> localFiles(const QByteArray& uriList, const QByteArray& hostName) {
    QList<QUrl> files;
    for (QByteArray line : uriList.split('\n')) {
        line.replace('\0', QByteArray()); // Some programs terminate the list with one.
        const QByteArray path = pathOf(line.trimmed(), hostName);
        if (!path.isEmpty()) {
            files.append(fileUrl(path));
        }
    }
    return files;
}

} // namespace ravelo
