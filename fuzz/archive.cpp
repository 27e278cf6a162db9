// Any archive: it is refused, or what is in it can be packed again.

#include "store/transfer/Archive.h"
#include "Input.h"

#include <QBuffer>

using namespace ravelo;

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    QByteArray input = fuzz::view(bytes, size).toByteArray();
    QBuffer archive(&input);
    QByteArray packed;
    QBuffer again(&packed);
    if (!archive.open(QIODevice::ReadOnly) || !again.open(QIODevice::ReadWrite)) {
        return 0;
    }
    ArchiveReader reader(archive);
    QList<std::pair<QByteArray, QByteArray>> entries;
    while (true) {
        const auto entry = reader.next();
        if (!entry || !*entry) {
            break;
        }
        const auto contents = reader.contents(qint64(size));
        fuzz::require(contents.has_value() && contents->size() == (*entry)->size);
        fuzz::require(writeEntry(again, (*entry)->name, *contents).has_value());
        entries.append({(*entry)->name, *contents});
    }
    fuzz::require(endArchive(again).has_value());
    ArchiveReader second(again);
    for (const auto& [name, contents] : entries) {
        const auto entry = second.next();
        fuzz::require(entry && *entry && (*entry)->name == name);
        const auto same = second.contents(qint64(size));
        fuzz::require(same && *same == contents);
    }
    const auto end = second.next();
    fuzz::require(end && !*end);
    return 0;
}
