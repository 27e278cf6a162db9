#include "store/PasteboardImage.h"

#include "platform/Pasteboard.h"
#include "store/CopiedFile.h"

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Kind = PictureLook::Kind;

constexpr auto pngType = "image/png"_L1;
constexpr auto filesType = "text/uri-list"_L1;

/// The forms worth asking for, best first.
QStringList candidates(const QStringList& offered) {
    QStringList list;
    const auto take = [&](const QString& type) {
        if (offered.contains(type) && !list.contains(type)) {
            list.append(type);
        }
    };
    for (const auto known : {pngType, "image/tiff"_L1, "image/jpeg"_L1, "image/webp"_L1,
                             "image/bmp"_L1, "image/gif"_L1}) {
        take(known);
    }
    for (const QString& type : offered) {
        // A drawing is a document: it has no size of its own and can draw in other files.
        if (type.startsWith("image/"_L1) && !type.startsWith("image/svg"_L1)) {
            take(type);
        }
    }
    take(filesType);
    return list;
}

PictureLook lookAt(const QString& type, const QByteArray& bytes, ImageDecoder& decoder) {
    if (bytes.isEmpty() || type == filesType) {
        return {};
    }
    return type == pngType ? PictureLook{Kind::good} : decoder.look(bytes);
}

} // namespace

QString nextImageType(const PasteboardSnapshot& contents, PictureLooks& looks,
                      ImageDecoder& decoder) {
    for (const QString& type : candidates(contents.types)) {
        const auto answer = contents.answers.find(type);
        if (answer == contents.answers.end()) {
            return type;
        }
        if (!looks.contains(type)) {
            looks.insert(type, lookAt(type, answer->value_or(QByteArray()), decoder));
        }
        if (looks.value(type).kind == Kind::good) {
            return {};
        }
    }
    return {};
}

bool hasGoodImage(const PasteboardSnapshot& contents, const PictureLooks& looks) {
    const bool hasFiles = !contents.answers.value(filesType).value_or(QByteArray()).isEmpty();
    return hasFiles || std::ranges::any_of(
                           looks, [](const PictureLook& look) { return look.kind == Kind::good; });
}

std::optional<TooLarge> oversizedImage(const PasteboardSnapshot& contents,
                                       const PictureLooks& looks) {
    qint64 bytes = 0;
    qint64 pixels = 0;
    for (const QString& type : candidates(contents.types)) {
        bytes = std::max(bytes, contents.tooLarge.value(type));
        const PictureLook look = looks.value(type);
        pixels = std::max(pixels, look.kind == Kind::tooManyPixels ? look.pixels() : 0);
    }
    return bytes > 0    ? std::optional(TooLarge{TooLarge::Kind::image, bytes})
           : pixels > 0 ? std::optional(TooLarge{TooLarge::Kind::pixels, pixels})
                        : std::nullopt;
}

std::optional<TooLarge> oversizedFile(const CopiedContents& file, ImageDecoder& decoder) {
    if (file.tooLarge > 0) {
        return TooLarge{TooLarge::Kind::image, file.tooLarge};
    }
    const PictureLook look = file.bytes.isEmpty() ? PictureLook() : decoder.look(file.bytes);
    return look.kind == Kind::tooManyPixels
               ? std::optional(TooLarge{TooLarge::Kind::pixels, look.pixels()})
               : std::nullopt;
}

QByteArray pngImage(const PasteboardSnapshot& contents, const QByteArray& file,
                    ImageDecoder& decoder) {
    for (const QString& type : candidates(contents.types)) {
        const QByteArray bytes = contents.answers.value(type).value_or(QByteArray());
        if (bytes.isEmpty()) {
            continue;
        }
        QByteArray png = type == pngType     ? bytes
                         : type == filesType ? decoder.png(file)
                                             : decoder.png(bytes);
        if (!png.isEmpty()) {
            return png;
        }
    }
    return {};
}

} // namespace ravelo
