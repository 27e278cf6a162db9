#include "store/images/PasteboardImage.h"

#include "decode/Formats.h"
#include "decode/Protocol.h"
#include "platform/ImageDecoder.h"
#include "platform/Pasteboard.h"
#include "store/history/ClipForms.h"
#include "store/images/CopiedFile.h"

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr auto pngType = "image/png"_L1;
constexpr qsizetype maxTries = 4; ///< An owner may offer hundreds of forms.

/// The forms worth asking for, best first.
QStringList candidates(const QStringList& offered) {
    QStringList list;
    const auto add = [&](const QString& type) {
        if (offered.contains(type) && !list.contains(type)) {
            list.append(type);
        }
    };
    for (const auto known : {pngType, "image/tiff"_L1, "image/jpeg"_L1, "image/webp"_L1,
                             "image/bmp"_L1, "image/gif"_L1}) {
        add(known);
    }
    for (const QString& type : offered) {
        // A drawing is a document: it has no size of its own and can include other files.
        if (type.startsWith("image/"_L1) && !type.startsWith("image/svg"_L1)) {
            add(type);
        }
    }
    add(uriListType);
    return list;
}

KeptImage converted(const QByteArray& bytes, ImageDecoder& decoder) {
    KeptImage kept{decoder.png(bytes), {}};
    if (kept.png.isEmpty()) {
        const PictureLook look = decoder.look(bytes);
        if (look.kind == PictureLook::Kind::tooManyPixels) {
            kept.tooLarge = TooLarge{TooLarge::Kind::pixels, look.pixels()};
        }
    }
    return kept;
}

} // namespace

QString nextImageType(const PasteboardSnapshot& contents, const QStringList& useless) {
    for (const QString& type : candidates(contents.types)) {
        const auto answer = contents.answers.find(type);
        if (answer == contents.answers.end()) {
            if (!useless.contains(type)) {
                return type;
            }
        } else if (decode::isRaster(answer->value_or(QByteArray()))) {
            return {};
        }
    }
    return {};
}

QString imageType(const PasteboardSnapshot& contents) {
    for (const QString& type : candidates(contents.types)) {
        const QByteArray bytes = contents.answers.value(type).value_or(QByteArray());
        if (type == uriListType ? !bytes.isEmpty() : decode::isRaster(bytes)) {
            return type;
        }
    }
    return {};
}

bool hasOtherForm(const QStringList& types, const QStringList& useless) {
    return useless.size() < maxTries && !nextImageType({types, {}}, useless).isEmpty();
}

std::optional<TooLarge> oversizedImage(const PasteboardSnapshot& contents) {
    qint64 bytes = 0;
    for (const QString& type : candidates(contents.types)) {
        bytes = std::max(bytes, contents.tooLarge.value(type));
    }
    return bytes > 0 ? std::optional(TooLarge{TooLarge::Kind::image, bytes}) : std::nullopt;
}

KeptImage imageToKeep(const PasteboardSnapshot& contents, const CopiedContents& file,
                      ImageDecoder& decoder) {
    const QString type = imageType(contents);
    if (type.isEmpty()) {
        return {};
    }
    if (type == uriListType) {
        return file.tooLarge > 0 ? KeptImage{{}, TooLarge{TooLarge::Kind::image, file.tooLarge}}
                                 : converted(file.bytes, decoder);
    }
    const QByteArray bytes = contents.answers.value(type).value_or(QByteArray());
    const auto pixels = decode::pngPixels(bytes);
    if (!pixels) { // Whatever the owner calls it.
        return converted(bytes, decoder);
    }
    const bool deep = decode::isDeepPng(bytes);
    const auto kind = deep ? TooLarge::Kind::deepPixels : TooLarge::Kind::pixels;
    return *pixels > decode::maxPixels / (deep ? 2 : 1) ? KeptImage{{}, TooLarge{kind, *pixels}}
                                                        : KeptImage{bytes, {}};
}

} // namespace ravelo
