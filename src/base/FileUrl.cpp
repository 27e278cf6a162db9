#include "base/FileUrl.h"

#include <QUtf8StringView>

#include <algorithm>

namespace ravelo {

QUrl fileUrl(const QByteArray& written) {
    // Keep one leading slash: Qt reads what follows two as a host.
    const auto name = std::ranges::find_if(written, [](char c) { return c != '/'; });
    const QByteArray path = written.sliced(std::max<qsizetype>(name - written.begin() - 1, 0));
    if (QUtf8StringView(path).isValidUtf8()) {
        return QUrl::fromLocalFile(QString::fromUtf8(path));
    }
    return QUrl::fromEncoded("file://" + path.toPercentEncoding("/"), QUrl::StrictMode);
}

QByteArray filePath(const QUrl& url) {
    if (!url.isLocalFile() || !url.host().isEmpty()) {
        return {};
    }
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
}

QByteArray fileAddress(const QUrl& url) {
    const QByteArray path = filePath(url);
    return path.isEmpty() ? QByteArray() : "file://" + path.toPercentEncoding("/");
}

} // namespace ravelo
