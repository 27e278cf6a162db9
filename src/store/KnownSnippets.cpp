#include "store/KnownSnippets.h"

#include "platform/ImageDecoder.h"
#include "store/ImageFiles.h"
#include "vault/Vault.h"

#include <QFileInfo>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

void dropKnownSnippets(StoreData& imported, const QList<Snippet>& known, const Vault& vault,
                       ImageDecoder& decoder, const OwnFile::Permission& mayWrite) {
    const auto path = [&vault](const Snippet& snippet) {
        return vault.folder() + u"/clips/"_s + QFileInfo(snippet.imageFileName).fileName();
    };
    // An import encodes every image again, so the first copy of one may have other bytes.
    const auto sameImage = [&](const Snippet& one, const Snippet& other) {
        const auto bytes = vault.bytes(path(one));
        const auto others = vault.bytes(path(other));
        return bytes && others && (*bytes == *others || *bytes == decoder.png(*others));
    };
    const QSet<QString> before = imageNames(imported);
    imported.snippets.removeIf([&](const Snippet& snippet) {
        return !snippet.imageFileName.isEmpty() &&
               std::ranges::any_of(known, [&](const Snippet& one) {
                   return !one.imageFileName.isEmpty() && one.title == snippet.title &&
                          one.body == snippet.body && sameImage(snippet, one);
               });
    });
    QStringList unused;
    for (const QString& name : before - imageNames(imported)) {
        unused.append(vault.folder() + u"/clips/"_s + name);
    }
    unused.removeAll(vault.folder() + u"/clips/"_s);
    (void)removeImages(unused, mayWrite);
}

} // namespace ravelo
