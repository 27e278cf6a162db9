// How the store deletes and restores.

#include "platform/ImageDecoder.h"
#include "platform/Worker.h"
#include "store/ClipHistory.h"
#include "store/Deleted.h"
#include "store/ImageFiles.h"
#include "store/Store.h"

#include <QFile>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

void Store::deleteClip(const QUuid& id, const std::shared_ptr<Deleted>& kept) {
    if (auto change = ClipHistory::deleted(data_.clips, id)) {
        takeOffDisk(deletedRecords(data_.clips, change->clips), kept);
        apply(ClipChange{std::move(change->clips), {}});
        saver_.saveNow(); // So that it survives a kill right after.
    }
}

void Store::clearClips(const std::shared_ptr<Deleted>& kept) {
    ++clearings_;
    captures_.drop();
    Q_EMIT cleared();
    ClipChange change = ClipHistory::cleared(data_.clips);
    takeOffDisk(deletedRecords(data_.clips, change.clips), kept);
    apply(ClipChange{std::move(change.clips), {}});
    saver_.saveNow(); // So that it survives a kill right after.
}

void Store::removeSnippet(const QUuid& id, const std::shared_ptr<Deleted>& kept) {
    QList<Snippet> left = data_.snippets;
    if (left.removeIf([&id](const Snippet& snippet) { return snippet.id == id; }) > 0) {
        takeOffDisk(deletedRecords(data_.snippets, left), kept);
        data_.snippets = std::move(left);
        saver_.saveNow(); // So that it survives a kill right after.
        Q_EMIT snippetsChanged();
    }
}

/// Removes the images of the records, after reading them into memory if they may come back.
void Store::takeOffDisk(const QList<DeletedRecord>& records, const std::shared_ptr<Deleted>& kept) {
    QStringList images;
    for (const DeletedRecord& record : records) {
        const QString name =
            std::visit([](const auto& one) { return one.imageFileName; }, record.record);
        if (!name.isEmpty()) {
            images.append(name);
        }
    }
    if (kept) {
        services_.worker.run([records, folder = clipsDir(), kept = std::weak_ptr(kept)] {
            if (const auto still = kept.lock()) {
                still->add(records, folder);
            }
        });
    }
    removeImages(images);
}

void Store::removeImages(const QStringList& imageFileNames) {
    for (const QString& name : imageFileNames) {
        services_.worker.run(
            [path = imagePath(name), decoder = services_.decoder, mayWrite = services_.mayWrite] {
                removeImage(path, mayWrite);
                decoder->forget(PictureFile{QFile::encodeName(path)});
            });
    }
}

void Store::restore(const std::shared_ptr<Deleted>& deleted,
                    std::function<void(const Restored&)> done) {
    const auto restorable = std::make_shared<Deleted::Restorable>();
    auto putBackAll = [this, restorable, done] {
        putBack(restorable->records);
        done({restorable->records.size(), restorable->problem, restorable->someStay});
    };
    auto putBackWhatClearingKeeps = [this, restorable, done] {
        QList<DeletedRecord> cleared;
        restorable->records.removeIf([&cleared](const DeletedRecord& one) {
            const auto* clip = std::get_if<ClipItem>(&one.record);
            const bool gone = clip != nullptr && !clip->pinned;
            if (gone) {
                cleared.append(one);
            }
            return gone;
        });
        takeOffDisk(cleared, {});
        putBack(restorable->records);
        done({restorable->records.size(), u"the history was cleared"_s, false});
    };
    services_.worker.run(
        [deleted, restorable, folder = clipsDir(), mayWrite = services_.mayWrite] {
            *restorable = deleted->restore(folder, mayWrite);
        },
        unlessCleared(std::move(putBackAll), std::move(putBackWhatClearingKeeps)));
}

void Store::putBack(const QList<DeletedRecord>& records) {
    ClipChange clips{data_.clips, {}};
    for (const DeletedRecord& deleted : records) {
        if (const auto* clip = std::get_if<ClipItem>(&deleted.record)) {
            if (auto change = ClipHistory::restored(clips.clips, *clip, deleted.order)) {
                clips = std::move(*change);
            }
        } else {
            const auto& snippet = std::get<Snippet>(deleted.record);
            data_.snippets.insert(placeFor(snippet.id, deleted.order, data_.snippets), snippet);
        }
    }
    apply(std::move(clips));
    Q_EMIT snippetsChanged();
    saver_.saveNow(); // So that it survives a kill right after.
}

} // namespace ravelo
