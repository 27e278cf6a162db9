#include "base/FileUrl.h"

#include <QUtf8StringView>

namespace ravelo {

QUrl fileUrl(const QByteArray& path) {
    if (path.startsWith("//")) { // Qt would take what follows for a host.
        return fileUrl(path.sliced(1));
    }
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
