// How the store deletes and restores.

#include "base/Scheduler.h"
#include "platform/ImageDecoder.h"
#include "platform/Worker.h"
#include "store/Store.h"
#include "store/history/ClipHistory.h"
#include "store/history/Deleted.h"
#include "store/images/ImageFiles.h"
#include "vault/Vault.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

Date hourAgo(const Scheduler& scheduler) {
    return {scheduler.now().sinceReference - 3600};
}

bool hasClip(const QList<ClipItem>& clips, const QUuid& id) {
    return std::ranges::find(clips, id, &ClipItem::id) != clips.cend();
}

} // namespace

void Store::deleteClip(const QUuid& id, const std::shared_ptr<Deleted>& kept) {
    deleteClips({id}, kept);
}

void Store::deleteClips(const QSet<QUuid>& ids, const std::shared_ptr<Deleted>& kept) {
    if (auto change = ClipHistory::deleted(data_.clips, ids)) {
        change->orphanedImages = takeOffDisk(deletedRecords(data_.clips, change->clips), kept);
        apply(std::move(change));
        saver_.saveNow(); // So that it survives a kill right after.
    }
}

void Store::clearClips(const std::shared_ptr<Deleted>& kept) {
    clear(ClipHistory::cleared(data_.clips), kept);
    removeLeftoversSoon({});
}

void Store::removeLeftoversSoon(std::optional<Date> since) {
    // Only once what the worker has already is done: a restored image is then named again. While
    // locked, it is not known what is named.
    services_.worker.run([] {},
                         [store = QPointer(this), since] {
                             if (store) {
                                 store->removeLeftovers(since);
                             }
                         });
}

void Store::removeLeftovers(std::optional<Date> since) {
    if (keepingFiles_ > 0) {
        leftoversAsked_.append(since);
    } else if (!locked_) {
        removeFiles(
            [folder = folder_, named = fileNames(data_) + lentImages_, since,
             mayWrite = services_.mayWrite] {
                return ravelo::removeLeftovers(folder, named, since, mayWrite);
            },
            since ? Removal::some : Removal::allLeftovers);
    }
}

Handle Store::keepFiles(std::function<void()> ready) {
    ++keepingFiles_;
    const auto asked = std::make_shared<std::function<void()>>(std::move(ready));
    // The worker may still have a removal that does not know of them.
    services_.worker.run([] {},
                         [weak = std::weak_ptr(asked)] {
                             if (const auto still = weak.lock()) {
                                 (*still)();
                             }
                         });
    return Handle([store = QPointer(this), asked] {
        if (store && --store->keepingFiles_ == 0) {
            for (const auto& since : std::exchange(store->leftoversAsked_, {})) {
                store->removeLeftovers(since);
            }
        }
    });
}

void Store::clearLastHour(const std::shared_ptr<Deleted>& kept) {
    const Date since = hourAgo(services_.scheduler);
    clear(ClipHistory::clearedSince(data_.clips, since), kept);
    removeLeftoversSoon(since); // Images that texts have pushed out.
}

qsizetype Store::lastHourCount() const {
    return data_.clips.size() -
           ClipHistory::clearedSince(data_.clips, hourAgo(services_.scheduler)).clips.size();
}

/// Also what is on its way goes.
void Store::clear(ClipChange change, const std::shared_ptr<Deleted>& kept) {
    ++clearings_;
    captures_.drop();
    Q_EMIT cleared();
    change.orphanedImages = takeOffDisk(deletedRecords(data_.clips, change.clips), kept);
    apply(std::move(change));
    saver_.saveNow(); // So that it survives a kill right after.
}

void Store::removeSnippet(const QUuid& id, const std::shared_ptr<Deleted>& kept) {
    QList<Snippet> left = data_.snippets;
    if (left.removeIf([&id](const Snippet& snippet) { return snippet.id == id; }) > 0) {
        removeImages(takeOffDisk(deletedRecords(data_.snippets, left), kept));
        data_.snippets = std::move(left);
        saver_.saveNow(); // So that it survives a kill right after.
        Q_EMIT snippetsChanged();
    }
}

/// Names of the files to remove with the records. They are read into memory first if they may come
/// back.
QStringList Store::takeOffDisk(const QList<DeletedRecord>& records,
                               const std::shared_ptr<Deleted>& kept) {
    QStringList images;
    for (const DeletedRecord& record : records) {
        const QString name =
            std::visit([](const auto& one) { return one.imageFileName; }, record.record);
        if (!name.isEmpty()) {
            images.append(name);
        }
        const auto* clip = std::get_if<ClipItem>(&record.record);
        if (clip != nullptr && record.forms) { // Back on the disk, but not in the history.
            images.append(formsFileName(clip->id));
        }
    }
    if (kept) {
        services_.worker.run(
            [records, folder = clipsDir(), vault = services_.vault, kept = std::weak_ptr(kept)] {
                if (const auto still = kept.lock()) {
                    still->add(records, folder, *vault);
                }
            });
    }
    return images;
}

void Store::removeImages(const QStringList& imageFileNames) {
    if (imageFileNames.isEmpty()) {
        return;
    }
    QStringList paths;
    for (const QString& name : imageFileNames) {
        paths.append(imagePath(name));
        lentImages_.remove(name);
    }
    removeFiles([paths, decoder = services_.decoder, vault = services_.vault,
                 mayWrite = services_.mayWrite] {
        Result<void> done = ravelo::removeImages(paths, mayWrite);
        for (const QString& path : paths) {
            vault->forget(path);
            decoder->forget(PictureFile{QFile::encodeName(path)});
        }
        return done;
    });
}

void Store::removeUnusedImage(const QString& imageFileName) {
    if (!imageFileName.isEmpty() &&
        !imageNames(data_).contains(QFileInfo(imageFileName).fileName())) {
        saver_.saveNow(); // The file on the disk names it until then.
        removeImages({imageFileName});
    }
}

/// On the worker; reports a failure, and that nothing is left over.
void Store::removeFiles(std::function<Result<void>()> remove, Removal removal) {
    const auto outcome = std::make_shared<Result<void>>();
    services_.worker.run([remove = std::move(remove), outcome] { *outcome = remove(); },
                         [store = QPointer(this), outcome, removal] {
                             if (store && (!*outcome || removal == Removal::allLeftovers)) {
                                 Q_EMIT store->removalEnded(*outcome ? QString()
                                                                     : outcome->error().message);
                             }
                         });
}

/// Once the records are in place: their images are not yet named by the file on the disk.
std::optional<qsizetype> Store::addAll(const StoreContents& contents,
                                       std::function<void(const SaveOutcome&)> saved) {
    if (locked_ || erased_) {
        QSet<QString> names = fileNames(contents.data);
        names.remove(QString());
        removeImages(names.values());
        return std::nullopt;
    }
    const qsizetype before = data_.snippets.size();
    for (const Snippet& snippet : contents.data.snippets) {
        const auto same = [&snippet](const Snippet& one) {
            return one.title == snippet.title && one.body == snippet.body &&
                   one.imageFileName.isEmpty() && snippet.imageFileName.isEmpty();
        };
        if (std::ranges::none_of(std::as_const(data_.snippets), same)) {
            data_.snippets.append(snippet);
        }
    }
    for (const auto& [note, other] : {std::pair(&data_.note, &contents.data.note),
                                      std::pair(&data_.note2, &contents.data.note2)}) {
        if (!other->isEmpty() && !note->contains(*other)) {
            *note += note->isEmpty() ? *other : u"\n\n"_s + *other;
        }
    }
    const QList<Stroke> drawn = data_.drawing;
    for (const Stroke& stroke : contents.data.drawing) {
        const auto same = [&stroke](const Stroke& one) {
            return one.points == stroke.points;
        };
        if (std::ranges::none_of(drawn, same)) {
            data_.drawing.append(stroke);
        }
    }
    const QList<ClipItem> both = data_.clips + contents.data.clips;
    measureFiles();
    data_.clips = ClipHistory::joined(data_.clips, contents.data.clips);
    removeImages(goneForms(both));
    for (const QList<QUrl>& stack : contents.shelf) {
        shelf_ = shelf_.added(stack).value_or(shelf_);
    }
    const qsizetype added = data_.snippets.size() - before;
    saver_.saveNow(std::move(saved));
    announceAll();
    Q_EMIT imported();
    return added;
}

void Store::restore(const std::shared_ptr<Deleted>& deleted,
                    const std::function<void(const Restored&)>& done) {
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
        removeImages(takeOffDisk(cleared, {}));
        putBack(restorable->records);
        done({restorable->records.size(),
              QCoreApplication::translate("ravelo::Store", "the history was cleared"), false});
    };
    services_.worker.run(
        [deleted, restorable, folder = clipsDir(), vault = services_.vault,
         mayWrite = services_.mayWrite] {
            *restorable = deleted->restore(folder, *vault, mayWrite);
        },
        unlessCleared(std::move(putBackAll), std::move(putBackWhatClearingKeeps)));
}

void Store::putBack(const QList<DeletedRecord>& records) {
    ClipChange clips{data_.clips, {}};
    for (const DeletedRecord& deleted : records) {
        if (const auto* clip = std::get_if<ClipItem>(&deleted.record)) {
            if (auto change = ClipHistory::restored(clips.clips, *clip, deleted.order)) {
                clips = std::move(*change);
            } else if (deleted.forms && !hasClip(clips.clips, clip->id)) {
                clips.orphanedImages.append(formsFileName(clip->id));
            }
        } else {
            const auto& snippet = std::get<Snippet>(deleted.record);
            data_.snippets.insert(placeFor(snippet.id, deleted.order, data_.snippets), snippet);
        }
    }
    apply(std::move(clips));
    measureFiles();
    Q_EMIT snippetsChanged();
    saver_.saveNow(); // So that it survives a kill right after.
}

void Store::setForgetAfter(std::optional<Seconds> after) {
    forgetting_.setAfter(after);
    forgetting_.follow(data_.clips);
}

void Store::keepSecret(const QUuid& id) {
    apply(
        ClipHistory::secretsKept(data_.clips, [&](const ClipItem& clip) { return clip.id == id; }));
}

void Store::keepSecrets() {
    apply(ClipHistory::secretsKept(
        data_.clips, [](const ClipItem& clip) { return clip.secret != uncheckedText; }));
}

void Store::forget(const QList<QUuid>& secrets) {
    QList<ClipItem> clips = data_.clips;
    const auto isOver = [&](const ClipItem& clip) {
        return !clip.secret.isEmpty() && secrets.contains(clip.id);
    };
    if (clips.removeIf(isOver) > 0) {
        apply(ClipChange{std::move(clips), {}});
    } else { // It was deleted or kept meanwhile.
        forgetting_.follow(data_.clips);
    }
}

} // namespace ravelo
