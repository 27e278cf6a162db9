#include "store/transfer/SnippetFile.h"

#include "base/Uuid.h"
#include "platform/ImageDecoder.h"
#include "store/images/ImageFiles.h"
#include "vault/Vault.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxSnippets = 1000;
constexpr qsizetype maxIconName = 64;
constexpr int version = 1;

QString formatName() {
    return u"ravelo-snippets"_s;
}

struct SnippetFile {
    Q_DECLARE_TR_FUNCTIONS(ravelo::SnippetFile)
};

QString imagePath(const Vault& vault, const QString& name) {
    return vault.folder() + u"/clips/"_s + QFileInfo(name).fileName();
}

tl::unexpected<Error> tooLong() {
    return failure(SnippetFile::tr("The file would have more than 16 MB. Snippets without their "
                                   "images need far less."));
}

/// A snippet of a file, its image not yet decoded.
struct Given {
    Snippet snippet;
    QByteArray image;
};

Result<QByteArray> contents(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return failure(SnippetFile::tr("The file cannot be read."));
    }
    const QByteArray bytes = file.read(maxSnippetFile + 1);
    if (bytes.size() > maxSnippetFile) {
        return failure(SnippetFile::tr("The file has more than 16 MB."));
    }
    return file.error() == QFileDevice::NoError
               ? Result<QByteArray>(bytes)
               : failure(SnippetFile::tr("The file cannot be read."));
}

Result<Given> given(const QJsonValue& value, qsizetype number) {
    const auto wrong = [number](const QString& why) {
        return failure(SnippetFile::tr("Snippet %1: %2").arg(number).arg(why));
    };
    if (!value[u"title"].isString() || value[u"title"].toString().trimmed().isEmpty()) {
        return wrong(SnippetFile::tr("it has no title."));
    }
    if (!value[u"body"].isString()) {
        return wrong(SnippetFile::tr("it has no text."));
    }
    const QString icon = value[u"icon"].toString();
    Given one{{QUuid::createUuid(),
               value[u"title"].toString(),
               value[u"body"].toString(),
               icon.isEmpty() || icon.size() > maxIconName ? u"doc.text"_s : icon,
               {}},
              {}};
    if (const QJsonValue image = value[u"image"]; !image.isUndefined() && !image.isNull()) {
        const auto decoded = QByteArray::fromBase64Encoding(
            image.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
        if (!decoded || decoded.decoded.isEmpty()) {
            return wrong(SnippetFile::tr("its image is damaged."));
        }
        one.image = *decoded;
    }
    return one;
}

Result<QList<Given>> parsed(const QByteArray& bytes) {
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(bytes, &error).object();
    if (error.error != QJsonParseError::NoError) {
        return failure(SnippetFile::tr("The file is damaged: it is no JSON from character %1 on.")
                           .arg(error.offset + 1));
    }
    if (object.value(u"format") != formatName() || !object.value(u"version").isDouble() ||
        !object.value(u"snippets").isArray()) {
        return failure(SnippetFile::tr("The file has no snippets of Ravelo."));
    }
    if (object.value(u"version").toInt() != version) {
        return failure(SnippetFile::tr("The file was written by a newer Ravelo."));
    }
    const QJsonArray array = object.value(u"snippets").toArray();
    if (array.isEmpty()) {
        return failure(SnippetFile::tr("There are no snippets in the file."));
    }
    if (array.size() > maxSnippets) {
        return failure(SnippetFile::tr("The file has more than 1,000 snippets."));
    }
    QList<Given> all;
    for (const auto value : array) {
        Result<Given> one = given(value, all.size() + 1);
        if (!one) {
            return tl::unexpected(one.error());
        }
        all.append(std::move(*one));
    }
    return all;
}

/// Decodes and writes an image; returns its name.
Result<QString> keptImage(const Given& given, const Vault& vault, ImageDecoder& decoder,
                          const OwnFile::Permission& mayWrite) {
    const QByteArray png = decoder.png(given.image);
    if (png.isEmpty()) {
        return failure(
            SnippetFile::tr("The image of \u201c%1\u201d is damaged.").arg(given.snippet.title));
    }
    const QString name = uuidText(QUuid::createUuid()) + u".png"_s;
    if (const auto written = writeImage(vault, imagePath(vault, name), png, mayWrite); !written) {
        return failure(SnippetFile::tr("Nothing was imported: %1").arg(written.error().message));
    }
    return name;
}

} // namespace

Result<void> exportSnippets(const QList<Snippet>& snippets, const Vault& vault,
                            const QString& path) {
    QJsonArray array;
    qint64 size = 0;
    for (const Snippet& snippet : snippets) {
        QJsonObject object{
            {u"title"_s, snippet.title}, {u"body"_s, snippet.body}, {u"icon"_s, snippet.icon}};
        if (!snippet.imageFileName.isEmpty()) {
            const auto png = vault.bytes(imagePath(vault, snippet.imageFileName));
            if (!png) {
                return failure(SnippetFile::tr("The image of \u201c%1\u201d cannot be read.")
                                   .arg(snippet.title));
            }
            size += png->size();
            if (size > maxSnippetFile) {
                return tooLong();
            }
            object.insert(u"image"_s, QString::fromLatin1(png->toBase64()));
        }
        array.append(object);
    }
    const QByteArray bytes = QJsonDocument(QJsonObject{{u"format"_s, formatName()},
                                                       {u"version"_s, version},
                                                       {u"snippets"_s, array}})
                                 .toJson();
    if (bytes.size() > maxSnippetFile) {
        return tooLong();
    }
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
                         file.write(bytes) == bytes.size() && file.commit();
    return written ? Result<void>()
                   : failure(SnippetFile::tr("Not exported: %1").arg(file.errorString()));
}

Result<QList<Snippet>> importSnippets(const QString& path, const Vault& vault,
                                      ImageDecoder& decoder, const OwnFile::Permission& mayWrite) {
    const auto all = contents(path).and_then(parsed);
    if (!all) {
        return tl::unexpected(all.error());
    }
    QList<Snippet> snippets;
    QStringList written;
    for (const Given& one : *all) {
        snippets.append(one.snippet);
        if (one.image.isEmpty()) {
            continue;
        }
        const auto name = keptImage(one, vault, decoder, mayWrite);
        if (!name) {
            (void)removeImages(written, mayWrite);
            return tl::unexpected(name.error());
        }
        snippets.last().imageFileName = *name;
        written.append(imagePath(vault, *name));
    }
    return snippets;
}

} // namespace ravelo
