#include "store/history/Deleted.h"

#include "base/Files.h"
#include "store/history/ClipForms.h"
#include "store/images/ImageFiles.h"
#include "vault/Vault.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace ravelo {

namespace {

QString imagePath(const DeletedRecord& record, const QString& folder) {
    const QString name = std::visit(
        [](const auto& one) { return QFileInfo(one.imageFileName).fileName(); }, record.record);
    return name.isEmpty() ? QString() : folder + u'/' + name;
}

/// Empty for a snippet.
QString formsPath(const DeletedRecord& record, const QString& folder) {
    const auto* clip = std::get_if<ClipItem>(&record.record);
    return clip == nullptr ? QString() : folder + u'/' + formsFileName(clip->id);
}

qint64 sizeOf(const ClipItem& clip) {
    return clip.text.size() * qint64(sizeof(QChar));
}

qint64 sizeOf(const Snippet& snippet) {
    return (snippet.title.size() + snippet.body.size()) * qint64(sizeof(QChar));
}

qint64 sizeOf(const DeletedRecord& record) {
    return std::visit([](const auto& one) { return sizeOf(one); }, record.record) +
           (record.png ? record.png->size() : 0) + (record.forms ? record.forms->size() : 0);
}

} // namespace

void Deleted::add(const QList<DeletedRecord>& records, const QString& folder, const Vault& vault) {
    for (DeletedRecord record : records) {
        const QString path = imagePath(record, folder);
        const bool hasImage = !path.isEmpty() && isRegularFile(QFile::encodeName(path));
        const QString forms = formsPath(record, folder);
        if (!forms.isEmpty() && isRegularFile(QFile::encodeName(forms))) {
            record.forms = vault.bytes(forms);
        }
        const qint64 size = sizeOf(record) + (hasImage ? QFileInfo(path).size() : 0);
        if (hasImage && size <= limit) {
            record.png = vault.bytes(path);
        }
        if (size > limit || (hasImage && !record.png)) {
            someLost_ = true;
            continue;
        }
        while (!records_.isEmpty() && bytes_ + size > limit) {
            bytes_ -= sizeOf(records_.takeFirst());
            someLost_ = true;
        }
        bytes_ += sizeOf(record);
        records_.append(std::move(record));
    }
}

Deleted::Restorable Deleted::restore(const QString& folder, const Vault& vault,
                                     const OwnFile::Permission& mayWrite) {
    Restorable all;
    if (std::exchange(someLost_, false)) {
        all.problem = QCoreApplication::translate("ravelo::Store", "too large to keep in memory");
    }
    for (QList<DeletedRecord> records = std::exchange(records_, {}); !records.isEmpty();) {
        DeletedRecord record = records.takeLast();
        const qint64 size = sizeOf(record);
        Result<void> written;
        if (record.png) {
            written = writeImage(vault, imagePath(record, folder), *record.png, mayWrite);
        }
        if (written && record.forms) {
            written = vault.write(formsPath(record, folder), *record.forms, mayWrite);
        }
        if (!written) {
            all.problem = written.error().message;
            all.someStay = true;
            records_.prepend(std::move(record));
            continue;
        }
        record.png.reset();
        if (record.forms) {
            record.forms = QByteArray();
        }
        bytes_ -= size;
        all.records.append(std::move(record));
    }
    return all;
}

} // namespace ravelo
