#include "store/history/ClipDetails.h"

#include "decode/Formats.h"
#include "vault/Vault.h"

#include <QFile>
#include <QtEndian>

namespace ravelo {

namespace {

constexpr qsizetype headerLength = 33; ///< Of a PNG: signature and first chunk.
constexpr qsizetype widthOffset = 16;

} // namespace

ClipDetails detailsOf(const ClipForms& kept) {
    ClipDetails details{kept.program};
    for (const PasteboardEntry& form : kept.forms) {
        details.forms.append(form.type);
    }
    details.files = filesOf(kept).size();
    return details;
}

std::optional<ClipForms> readForms(const Vault& vault, const QString& path) {
    const auto bytes = vault.bytes(path);
    return bytes ? decodeForms(*bytes) : std::nullopt;
}

QSize imageSize(const Vault& vault, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {0, 0};
    }
    QByteArray header = file.read(headerLength);
    if (formOf(header) != FileForm::plain) {
        header = vault.bytes(path).value_or(QByteArray());
    }
    return decode::pngPixels(header)
               ? QSize(qFromBigEndian<qint32>(header.constData() + widthOffset),
                       qFromBigEndian<qint32>(header.constData() + widthOffset + 4))
               : QSize(0, 0);
}

} // namespace ravelo
