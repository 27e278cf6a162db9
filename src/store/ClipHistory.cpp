#include "store/ClipHistory.h"

#include "store/Deleted.h"

#include <QUrl>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

bool isLink(const QString& trimmed) {
    // QUrl knows about blanks too, but takes 15 ms to say so of the largest texts.
    if (!trimmed.contains("://"_L1) ||
        std::ranges::any_of(trimmed, [](QChar c) { return c.isSpace(); })) {
        return false;
    }
    const QUrl url(trimmed, QUrl::StrictMode);
    return url.isValid() && !url.scheme().isEmpty();
}

/// Takes out the clips that `isDoomed` names and gives back the names of their image files.
template <typename Predicate>
QStringList remove(QList<ClipItem>& clips, Predicate isDoomed) {
    QStringList images;
    clips.removeIf([&](const ClipItem& clip) {
        const bool doomed = isDoomed(clip);
        if (doomed && !clip.imageFileName.isEmpty()) {
            images.append(clip.imageFileName);
        }
        return doomed;
    });
    return images;
}

QStringList enforceLimit(QList<ClipItem>& clips) {
    int unpinned = 0;
    return remove(clips, [&](const ClipItem& clip) {
        return !clip.pinned && ++unpinned > ClipHistory::limit;
    });
}

} // namespace

std::optional<ClipChange> ClipHistory::added(QList<ClipItem> clips, const QString& text, Date now) {
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        return std::nullopt;
    }
    const auto newest = std::ranges::find(std::as_const(clips), false, &ClipItem::pinned);
    if (newest != clips.cend() && newest->text == text) {
        return std::nullopt;
    }
    clips.removeIf([&](const ClipItem& clip) { return !clip.pinned && clip.text == text; });
    clips.prepend({QUuid::createUuid(),
                   text,
                   isLink(trimmed) ? ClipKind::url : ClipKind::text,
                   now,
                   false,
                   {}});
    enforceLimit(clips);
    return ClipChange{std::move(clips), {}};
}

ClipChange ClipHistory::imageAdded(QList<ClipItem> clips, const QString& imageFileName, Date now) {
    clips.prepend({QUuid::createUuid(), u"Image"_s, ClipKind::image, now, false, imageFileName});
    QStringList orphans = enforceLimit(clips);
    return {std::move(clips), std::move(orphans)};
}

std::optional<ClipChange> ClipHistory::pinToggled(QList<ClipItem> clips, const QUuid& id) {
    const auto clip = std::ranges::find(clips, id, &ClipItem::id);
    if (clip == clips.end()) {
        return std::nullopt;
    }
    clip->pinned = !clip->pinned;
    std::ranges::stable_sort(clips, [](const ClipItem& a, const ClipItem& b) {
        return a.pinned != b.pinned ? a.pinned : a.date < b.date;
    });
    return ClipChange{std::move(clips), {}};
}

std::optional<ClipChange> ClipHistory::deleted(QList<ClipItem> clips, const QUuid& id) {
    const qsizetype before = clips.size();
    QStringList orphans = remove(clips, [&](const ClipItem& clip) { return clip.id == id; });
    if (clips.size() == before) {
        return std::nullopt;
    }
    return ClipChange{std::move(clips), std::move(orphans)};
}

bool ClipHistory::has(const QList<ClipItem>& clips, const ClipItem& clip) {
    return std::ranges::any_of(clips, [&clip](const ClipItem& one) {
        return one.id == clip.id || (!one.pinned && !clip.pinned && one.kind == clip.kind &&
                                     one.kind != ClipKind::image && one.text == clip.text);
    });
}

std::optional<ClipChange> ClipHistory::restored(QList<ClipItem> clips, const ClipItem& clip,
                                                const QList<QUuid>& order) {
    if (has(clips, clip)) {
        return std::nullopt;
    }
    clips.insert(placeFor(clip.id, order, clips), clip);
    QStringList orphans = enforceLimit(clips);
    return ClipChange{std::move(clips), std::move(orphans)};
}

ClipChange ClipHistory::cleared(QList<ClipItem> clips) {
    QStringList orphans = remove(clips, [](const ClipItem& clip) { return !clip.pinned; });
    return {std::move(clips), std::move(orphans)};
}

} // namespace ravelo
