#include "clipboard/FileForms.h"

#include "base/FileUrl.h"
#include "store/history/ClipForms.h"

#include <QUtf8StringView>

namespace ravelo {

QList<PasteboardEntry> fileForms(const QUrl& url) {
    const QByteArray path = filePath(url);
    if (path.isEmpty()) {
        return {};
    }
    const QByteArray address = fileAddress(url);
    QList<PasteboardEntry> forms = {
        {uriListType, address + "\r\n"},
        {gnomeFilesType, "copy\n" + address},
    };
    if (QUtf8StringView(path).isValidUtf8()) {
        forms.append({plainTextType, path});
    }
    return forms;
}

} // namespace ravelo
