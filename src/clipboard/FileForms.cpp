#include "clipboard/FileForms.h"

#include "base/FileUrl.h"

#include <QUtf8StringView>

namespace ravelo {

using namespace Qt::StringLiterals;

QList<PasteboardEntry> fileForms(const QUrl& url) {
    const QByteArray path = filePath(url);
    if (path.isEmpty()) {
        return {};
    }
    const QByteArray address = fileAddress(url);
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
