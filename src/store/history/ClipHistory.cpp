#include "store/history/ClipHistory.h"

#include "store/history/ClipForms.h"
#include "store/history/Deleted.h"

#include <QSet>
#include <QUrl>

#include <algorithm>
#include <functional>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Bytes in UTF-8, without converting it.
qint64 utf8Size(QStringView text) {
    qint64 size = 0;
    for (const QChar unit : text) {
        const ushort code = unit.unicode();
        // A surrogate is half of four bytes.
        size += code < 0x80 ? 1 : code < 0x800 || unit.isSurrogate() ? 2 : 3;
    }
    return size;
}

bool isLink(const QString& trimmed) {
    // QUrl would also reject blanks, but takes 15 ms for the largest texts.
    if (!trimmed.contains("://"_L1) ||
        std::ranges::any_of(trimmed, [](QChar c) { return c.isSpace(); })) {
        return false;
    }
    const QUrl url(trimmed, QUrl::StrictMode);
    return url.isValid() && !url.scheme().isEmpty();
}

/// Removes the clips for which `isDoomed` holds and returns the names of their image files.
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

qint64 sizeOf(const ClipItem& clip, const FileSizes& sizes) {
    const qint64 forms = sizes.value(formsFileName(clip.id));
    return forms +
           (clip.kind == ClipKind::image ? sizes.value(clip.imageFileName) : utf8Size(clip.text));
}

/// The oldest unpinned clips that have to go until the rest has at most `limit` bytes.
template <typename Size>
QSet<QUuid> surplusOf(const QList<ClipItem>& clips, qint64 limit, const Size& size) {
    QSet<QUuid> surplus;
    qint64 all = 0;
    for (const ClipItem& clip : clips) {
        all += limit > 0 ? size(clip) : 0;
    }
    if (all <= limit) {
        return surplus;
    }
    QList<const ClipItem*> byAge;
    for (const ClipItem& clip : clips) {
        if (!clip.pinned && size(clip) > 0) {
            byAge.append(&clip);
        }
    }
    std::ranges::stable_sort(byAge, {},
                             [](const ClipItem* clip) { return clip->date.sinceReference; });
    for (const ClipItem* clip : byAge) {
        if (all <= limit) {
            break;
        }
        all -= size(*clip);
        surplus.insert(clip->id);
    }
    return surplus;
}

QStringList enforceLimit(QList<ClipItem>& clips, int limit) {
    int unpinned = 0;
    return remove(clips, [&](const ClipItem& clip) { return !clip.pinned && ++unpinned > limit; });
}

} // namespace

std::optional<ClipChange> ClipHistory::added(QList<ClipItem> clips, const QString& text, Date now,
                                             const HistoryRules& rules, const QString& secret) {
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        return std::nullopt;
    }
    const auto newest = std::ranges::find(std::as_const(clips), false, &ClipItem::pinned);
    if (newest != clips.cend() && newest->text == text && newest->secret.isEmpty() &&
        secret.isEmpty()) {
        return std::nullopt;
    }
    clips.removeIf([&](const ClipItem& clip) { return !clip.pinned && clip.text == text; });
    clips.prepend({QUuid::createUuid(),
                   text,
                   isLink(trimmed) ? ClipKind::url : ClipKind::text,
                   now,
                   false,
                   {},
                   secret});
    enforceLimit(clips, rules.limit);
    return ClipChange{std::move(clips), {}};
}

ClipChange ClipHistory::imageAdded(QList<ClipItem> clips, const QString& imageFileName, Date now,
                                   const HistoryRules& rules) {
    clips.prepend({QUuid::createUuid(), u"Image"_s, ClipKind::image, now, false, imageFileName});
    QStringList orphans = enforceLimit(clips, rules.limit);
    return {std::move(clips), std::move(orphans)};
}

std::optional<ClipChange> ClipHistory::pinToggled(QList<ClipItem> clips, const QUuid& id,
                                                  HistoryRules::Order order) {
    const auto clip = std::ranges::find(clips, id, &ClipItem::id);
    if (clip == clips.end()) {
        return std::nullopt;
    }
    clip->pinned = !clip->pinned;
    clip->secret.clear(); // What is pinned is kept.
    std::ranges::stable_sort(clips, [order](const ClipItem& a, const ClipItem& b) {
        if (a.pinned != b.pinned) {
            return a.pinned;
        }
        return order == HistoryRules::Order::newerFirst ? b.date < a.date : a.date < b.date;
    });
    return ClipChange{std::move(clips), {}};
}

std::optional<ClipChange>
ClipHistory::secretsKept(QList<ClipItem> clips,
                         const std::function<bool(const ClipItem&)>& isMeant) {
    bool any = false;
    for (ClipItem& clip : clips) {
        if (!clip.secret.isEmpty() && isMeant(clip)) {
            clip.secret.clear();
            any = true;
        }
    }
    return any ? std::optional(ClipChange{std::move(clips), {}}) : std::nullopt;
}

std::optional<ClipChange> ClipHistory::newerFirst(const QList<ClipItem>& clips) {
    QList<ClipItem> byDate = clips;
    std::ranges::stable_sort(byDate, std::greater<>(), [](const ClipItem& clip) {
        return std::pair(clip.pinned, clip.date.sinceReference);
    });
    auto pinned = byDate.cbegin();
    auto others = std::ranges::find(std::as_const(byDate), false, &ClipItem::pinned);
    QList<ClipItem> sorted;
    for (const ClipItem& clip : clips) {
        sorted.append(clip.pinned ? *pinned++ : *others++);
    }
    return sorted == clips ? std::nullopt : std::optional(ClipChange{std::move(sorted), {}});
}

std::optional<ClipChange> ClipHistory::deleted(QList<ClipItem> clips, const QSet<QUuid>& ids) {
    const qsizetype before = clips.size();
    QStringList orphans =
        remove(clips, [&](const ClipItem& clip) { return ids.contains(clip.id); });
    if (clips.size() == before) {
        return std::nullopt;
    }
    return ClipChange{std::move(clips), std::move(orphans)};
}

std::optional<ClipChange> ClipHistory::restored(QList<ClipItem> clips, const ClipItem& clip,
                                                const QList<QUuid>& order) {
    const auto stands = [&clip](const ClipItem& one) {
        return one.id == clip.id || (!one.pinned && !clip.pinned && one.kind == clip.kind &&
                                     one.kind != ClipKind::image && one.text == clip.text);
    };
    if (std::ranges::any_of(std::as_const(clips), stands)) {
        return std::nullopt;
    }
    clips.insert(placeFor(clip.id, order, clips), clip);
    return ClipChange{std::move(clips), {}};
}

std::optional<ClipChange> ClipHistory::trimmed(QList<ClipItem> clips, Date now,
                                               const HistoryRules& rules, const FileSizes& sizes) {
    const qsizetype before = clips.size();
    QStringList orphans = remove(clips, [&](const ClipItem& clip) {
        return !clip.pinned && rules.keepFor > 0 &&
               now.sinceReference - clip.date.sinceReference >= rules.keepFor;
    });
    for (const bool images : {false, true}) {
        const auto size = [&](const ClipItem& clip) {
            return (clip.kind == ClipKind::image) == images ? sizeOf(clip, sizes) : 0;
        };
        const QSet<QUuid> surplus =
            surplusOf(clips, images ? rules.imageBytes : rules.textBytes, size);
        orphans += remove(clips, [&](const ClipItem& clip) { return surplus.contains(clip.id); });
    }
    if (clips.size() == before) {
        return std::nullopt;
    }
    return ClipChange{std::move(clips), std::move(orphans)};
}

QSet<QUuid> ClipHistory::surplusForms(const QList<ClipItem>& clips, qint64 limit,
                                      const FileSizes& sizes) {
    return surplusOf(clips, limit, [&sizes](const ClipItem& clip) {
        return sizes.value(formsFileName(clip.id));
    });
}

qint64 ClipHistory::textBytes(const QList<ClipItem>& clips) {
    qint64 size = 0;
    for (const ClipItem& clip : clips) {
        size += clip.kind == ClipKind::image ? 0 : utf8Size(clip.text);
    }
    return size;
}

ClipChange ClipHistory::merged(QList<ClipItem> clips, QList<ClipItem> others,
                               const HistoryRules& rules) {
    std::ranges::reverse(others); // Of one date, the first in the list is the newest.
    std::ranges::stable_sort(others, {},
                             [](const ClipItem& clip) { return clip.date.sinceReference; });
    for (ClipItem& other : others) {
        const auto same = [&other](const ClipItem& clip) {
            return clip.id == other.id;
        };
        if (std::ranges::any_of(std::as_const(clips), same)) {
            continue;
        }
        if (other.kind != ClipKind::image) {
            clips.removeIf([&](const ClipItem& clip) {
                const bool again =
                    !clip.pinned && clip.kind != ClipKind::image && clip.text == other.text;
                if (again && clip.secret.isEmpty()) {
                    other.secret.clear(); // The user keeps this text.
                }
                return again;
            });
        }
        clips.prepend(other);
    }
    QStringList orphans = enforceLimit(clips, rules.limit);
    return {std::move(clips), std::move(orphans)};
}

QList<ClipItem> ClipHistory::joined(QList<ClipItem> clips, const QList<ClipItem>& others) {
    clips += others;
    std::ranges::stable_sort(clips, std::greater<>(), [](const ClipItem& clip) {
        return std::pair(clip.pinned, clip.date.sinceReference);
    });
    QSet<QString> seen;
    clips.removeIf([&seen](const ClipItem& clip) {
        const bool isText = !clip.pinned && clip.kind != ClipKind::image;
        const bool again = isText && seen.contains(clip.text);
        if (isText) {
            seen.insert(clip.text);
        }
        return again;
    });
    return clips;
}

ClipChange ClipHistory::clearedSince(QList<ClipItem> clips, Date since) {
    QStringList orphans = remove(clips, [since](const ClipItem& clip) {
        return !clip.pinned && clip.date.sinceReference >= since.sinceReference;
    });
    return {std::move(clips), std::move(orphans)};
}

ClipChange ClipHistory::cleared(QList<ClipItem> clips) {
    QStringList orphans = remove(clips, [](const ClipItem& clip) { return !clip.pinned; });
    return {std::move(clips), std::move(orphans)};
}

} // namespace ravelo
