#include "store/disk/ShelfPaths.h"

#include "base/FileUrl.h"
#include "base/UriList.h"

#include <QUtf8StringView>

#include <utility>

namespace ravelo {

namespace {

QString stored(const QUrl& file) {
    const QByteArray path = filePath(file);
    return QString::fromUtf8(QUtf8StringView(path).isValidUtf8() ? path : fileAddress(file));
}

QUrl fromStored(const QString& text) {
    return text.startsWith(u'/') ? fileUrl(text.toUtf8()) : localFiles(text.toUtf8(), {}).value(0);
}

} // namespace

QList<QStringList> shelfPaths(const QList<QList<QUrl>>& stacks) {
    QList<QStringList> all;
    for (const QList<QUrl>& stack : stacks) {
        QStringList& one = all.emplaceBack();
        for (const QUrl& url : stack) {
            one.append(stored(url));
        }
    }
    return all;
}

QList<QList<QUrl>> shelfStacks(const QList<QStringList>& paths) {
    QList<QList<QUrl>> stacks;
    for (const QStringList& stack : paths) {
        QList<QUrl> files;
        for (const QString& path : stack) {
            if (const QUrl url = fromStored(path); !url.isEmpty()) {
                files.append(url);
            }
        }
        if (!files.isEmpty()) {
            stacks.append(std::move(files));
        }
    }
    return stacks;
}

} // namespace ravelo
