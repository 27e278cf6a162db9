#include "clipboard/FileForms.h"

#include <QUtf8StringView>

namespace ravelo {

using namespace Qt::StringLiterals;

QList<PasteboardEntry> fileForms(const QUrl& url) {
    // The bytes of the name, which need not be UTF-8.
    const QByteArray path =
        QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    if (!url.isLocalFile() || path.isEmpty()) {
        return {};
    }
    const QByteArray address =
        "file://" + url.host(QUrl::FullyEncoded).toLatin1() + path.toPercentEncoding("/");
    QList<PasteboardEntry> forms = {
        {u"text/uri-list"_s, address + "\r\n"},
        {u"x-special/gnome-copied-files"_s, "copy\n" + address},
    };
    if (QUtf8StringView(path).isValidUtf8()) {
        forms.append({plainTextType, path});
    }
    return forms;
}

} // namespace ravelo
