#include "store/transfer/KnownRecords.h"

#include "platform/ImageDecoder.h"
#include "store/images/ImageFiles.h"
#include "vault/Vault.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <optional>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Compares image files by content, each read once. An import encodes every image again, so the
/// first copy of one may have other bytes.
class Pictures {
public:
    Pictures(const Vault& vault, ImageDecoder& decoder) : vault_(vault), decoder_(decoder) {}

    [[nodiscard]] bool areSame(const QString& imported, const QString& known) {
        const Prints& one = prints(imported);
        Prints& other = prints(known);
        if (one.asStored.isEmpty() || other.asStored.isEmpty()) {
            return false;
        }
        if (one.asStored == other.asStored) {
            return true;
        }
        if (!other.encodedAgain) {
            other.encodedAgain = hash(decoder_.png(bytes(known).value_or(QByteArray())));
        }
        return one.asStored == *other.encodedAgain;
    }

private:
    /// Hashes, so that many images do not fill the memory; empty if there is no file.
    struct Prints {
        QByteArray asStored;
        std::optional<QByteArray> encodedAgain;
    };

    static QByteArray hash(const QByteArray& bytes) {
        return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
    }

    [[nodiscard]] std::optional<QByteArray> bytes(const QString& fileName) const {
        return vault_.bytes(vault_.folder() + u"/clips/"_s + QFileInfo(fileName).fileName());
    }

    Prints& prints(const QString& fileName) {
        const auto [found, isNew] = prints_.try_emplace(fileName);
        if (isNew) {
            const auto stored = bytes(fileName);
            found->second.asStored = stored ? hash(*stored) : QByteArray();
        }
        return found->second;
    }

    const Vault& vault_;
    ImageDecoder& decoder_;
    std::map<QString, Prints> prints_;
};

bool isKnown(const Snippet& snippet, const QList<Snippet>& known, Pictures& pictures) {
    return !snippet.imageFileName.isEmpty() && std::ranges::any_of(known, [&](const Snippet& one) {
        return !one.imageFileName.isEmpty() && one.title == snippet.title &&
               one.body == snippet.body &&
               pictures.areSame(snippet.imageFileName, one.imageFileName);
    });
}

/// Unpinned texts are found by the history itself.
bool isKnown(const ClipItem& clip, const QList<ClipItem>& known, Pictures& pictures) {
    return std::ranges::any_of(known, [&](const ClipItem& one) {
        const bool keepsPin = one.pinned || !clip.pinned;
        if (one.kind != clip.kind || !keepsPin) {
            return false;
        }
        return clip.kind == ClipKind::image
                   ? pictures.areSame(clip.imageFileName, one.imageFileName)
                   : clip.pinned && one.text == clip.text && one.secret.isEmpty();
    });
}

} // namespace

void dropKnownRecords(StoreData& imported, const StoreData& known, const Vault& vault,
                      ImageDecoder& decoder, const OwnFile::Permission& mayWrite) {
    const QSet<QString> before = fileNames(imported);
    Pictures pictures(vault, decoder);
    imported.snippets.removeIf(
        [&](const Snippet& one) { return isKnown(one, known.snippets, pictures); });
    imported.clips.removeIf(
        [&](const ClipItem& one) { return isKnown(one, known.clips, pictures); });
    QStringList unused;
    const QSet<QString> gone = before - fileNames(imported);
    for (const QString& name : gone) {
        if (!name.isEmpty()) {
            unused.append(vault.folder() + u"/clips/"_s + name);
        }
    }
    (void)removeImages(unused, mayWrite);
}

} // namespace ravelo
