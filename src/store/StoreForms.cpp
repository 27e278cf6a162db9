// What the store keeps beside a clip, and how much all of it is.

#include "platform/DetachedJobs.h"
#include "platform/Worker.h"
#include "store/Store.h"
#include "vault/Vault.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <memory>
#include <utility>

namespace ravelo {

namespace {

/// Bytes of all forms together if the user has set no limit.
constexpr qint64 maxAllForms = qint64(256) << 20;

struct Unknown {
    QUuid clip;
    QString forms; ///< Path; empty if there are none.
    QString image; ///< Likewise.
};

ClipDetails lookUp(const Unknown& unknown, const Vault& vault) {
    ClipDetails details;
    if (const auto kept =
            unknown.forms.isEmpty() ? std::nullopt : readForms(vault, unknown.forms)) {
        details = detailsOf(*kept);
    }
    if (!unknown.image.isEmpty()) {
        details.pixels = imageSize(vault, unknown.image);
    }
    return details;
}

} // namespace

QString Store::formsPath(const QUuid& clip) const {
    return imagePath(formsFileName(clip));
}

bool Store::hasForms(const QUuid& clip) const {
    return !sizesKnown_ || fileSizes_.contains(formsFileName(clip));
}

void Store::setForms(const QUuid& clip, const ClipForms& kept) {
    const auto found = std::ranges::find(data_.clips, clip, &ClipItem::id);
    if (erased_ || found == data_.clips.end() || !found->secret.isEmpty()) {
        return;
    }
    ClipDetails details = ravelo::detailsOf(kept);
    details.pixels = detailsOf(clip).pixels;
    if (!kept.isEmpty()) {
        fileSizes_.insert(formsFileName(clip), formsSize(kept));
        const auto written = std::make_shared<Result<void>>();
        services_.worker.run(
            [vault = services_.vault, path = formsPath(clip), kept, mayWrite = services_.mayWrite,
             written] {
                *written = vault->write(path, encodeForms(kept), mayWrite);
                if (!*written) {
                    (void)ravelo::removeImages({path}, mayWrite); // They are of an earlier copy.
                }
            },
            [store = QPointer(this), clip, details, written] {
                if (store && !*written) {
                    store->formsFailed(clip, details);
                }
            });
    } else if (hasForms(clip)) {
        fileSizes_.remove(formsFileName(clip));
        removeImages({formsFileName(clip)});
    }
    details_.insert(clip, details);
    trim();
    Q_EMIT detailsChanged();
}

/// Unless others are on their way already.
void Store::formsFailed(const QUuid& clip, const ClipDetails& described) {
    const auto known = details_.find(clip);
    if (known != details_.end() && *known == described) {
        fileSizes_.remove(formsFileName(clip));
        *known = {.pixels = known->pixels};
        Q_EMIT detailsChanged();
    }
}

/// Without a limit of the user: their clips stay, as plain text.
void Store::trimForms() {
    if (rules_.textBytes > 0) {
        return;
    }
    QStringList names;
    const auto surplus = ClipHistory::surplusForms(data_.clips, maxAllForms, fileSizes_);
    for (const QUuid& clip : surplus) {
        names.append(formsFileName(clip));
        fileSizes_.remove(names.last());
        details_.insert(clip, {.pixels = detailsOf(clip).pixels});
    }
    removeImages(names);
}

void Store::lookUpDetails(const QUuid& only) {
    if (lookingUp_) {
        lookUpNext_ = lookUpNext_ && *lookUpNext_ != only ? QUuid() : only;
        return;
    }
    QList<Unknown> unknown;
    for (const ClipItem& clip : std::as_const(data_.clips)) {
        const bool isImage = clip.kind == ClipKind::image;
        const auto known = details_.constFind(clip.id);
        const bool isKnown = known != details_.cend() && (!isImage || known->pixels.isValid());
        if ((only.isNull() || clip.id == only) && clip.secret.isEmpty() && !isKnown) {
            unknown.append({clip.id, hasForms(clip.id) ? formsPath(clip.id) : QString(),
                            isImage ? imagePath(clip.imageFileName) : QString()});
        }
    }
    if (unknown.isEmpty()) {
        return;
    }
    const auto found = std::make_shared<QHash<QUuid, ClipDetails>>();
    lookingUp_ = services_.jobs.run(
        [unknown, found, vault = services_.vault] {
            for (const Unknown& one : unknown) {
                found->insert(one.clip, lookUp(one, *vault));
            }
        },
        [this, found] {
            lookingUp_.reset();
            lookedUp(*found);
            if (const auto next = std::exchange(lookUpNext_, std::nullopt)) {
                lookUpDetails(*next);
            }
        });
}

void Store::lookedUp(const QHash<QUuid, ClipDetails>& found) {
    for (const ClipItem& clip : std::as_const(data_.clips)) {
        const auto details = found.constFind(clip.id);
        if (details == found.cend()) {
            continue;
        }
        if (!details_.contains(clip.id)) {
            details_.insert(clip.id, *details);
        } else {
            details_[clip.id].pixels = details->pixels; // Written meanwhile.
        }
    }
    if (!found.isEmpty()) {
        Q_EMIT detailsChanged();
    }
}

qint64 Store::textBytes() const {
    qint64 size = ClipHistory::textBytes(data_.clips);
    for (const ClipItem& clip : data_.clips) {
        size += clip.kind == ClipKind::image ? 0 : fileSizes_.value(formsFileName(clip.id));
    }
    return size;
}

qint64 Store::imageBytes() const {
    qint64 size = 0;
    for (const ClipItem& clip : data_.clips) {
        if (clip.kind == ClipKind::image) {
            size += fileSizes_.value(clip.imageFileName) + fileSizes_.value(formsFileName(clip.id));
        }
    }
    return size;
}

/// Names of the images of clips that are no longer there.
QStringList Store::goneImages(const QList<ClipItem>& before) const {
    const QSet<QString> named = imageNames(data_);
    QStringList names;
    for (const ClipItem& clip : before) {
        if (!clip.imageFileName.isEmpty() &&
            !named.contains(QFileInfo(clip.imageFileName).fileName())) {
            names.append(clip.imageFileName);
        }
    }
    return names;
}

/// Names of the files beside clips that are no longer there.
QStringList Store::goneForms(const QList<ClipItem>& before) {
    QSet<QUuid> there;
    for (const ClipItem& clip : std::as_const(data_.clips)) {
        there.insert(clip.id);
    }
    QStringList names;
    for (const ClipItem& clip : before) {
        if (there.contains(clip.id)) {
            continue;
        }
        details_.remove(clip.id);
        if (clip.secret.isEmpty() && hasForms(clip.id)) {
            names.append(formsFileName(clip.id));
            fileSizes_.remove(names.last());
        }
    }
    return names;
}

/// On the worker, after what it has already and after `job`. Until then any clip may have forms.
void Store::measureFiles(std::function<void()> job) {
    sizesKnown_ = false;
    const auto sizes = std::make_shared<FileSizes>();
    services_.worker.run(
        [job = std::move(job), clips = clipsDir(), sizes] {
            if (job) {
                job();
            }
            *sizes = fileSizes(clips);
        },
        [store = QPointer(this), sizes, number = ++measurings_] {
            if (store && store->measurings_ == number) {
                store->fileSizes_.insert(*sizes);
                store->sizesKnown_ = true;
                store->trimLater();
            }
        });
}

} // namespace ravelo
