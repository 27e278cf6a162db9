#include "ui/clips/ClipListModel.h"

#include "store/Store.h"
#include "ui/clips/SecretText.h"

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Wider than any panel; a clip can have megabytes.
constexpr qsizetype titleLength = 1000;

constexpr Seconds justNow(60);

QString title(const ClipItem& clip) {
    if (clip.kind == ClipKind::image) {
        return ClipListModel::tr("Image");
    }
    if (!clip.secret.isEmpty()) {
        return secretRuns(clip).join(QString());
    }
    return clip.text.left(titleLength).replace(u'\n', u' ');
}

QString icon(ClipKind kind) {
    switch (kind) {
    case ClipKind::url:
        return u"link"_s;
    case ClipKind::image:
        return u"photo"_s;
    case ClipKind::text:
        break;
    }
    return u"doc.text"_s;
}

} // namespace

ClipListModel::ClipListModel(Store& store, const Scheduler& scheduler, const QLocale& locale)
    : store_(store),
      scheduler_(scheduler),
      textSearch_(locale),
      relativeDate_(locale),
      locale_(locale) {
    connect(&store, &Store::cleared, this, &ClipListModel::dismissTooLarge);
    connect(&store, &Store::clipsChanged, this, &ClipListModel::update);
    update();
}

QVariant ClipListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const ClipItem& clip = rows()[index.row()];
    switch (role) {
    case titleRole:
        return title(clip);
    case iconRole:
        return isTooLarge(clip)         ? u"exclamationmark.circle"_s
               : !clip.secret.isEmpty() ? u"shield"_s
                                        : icon(clip.kind);
    case pinnedRole:
        return clip.pinned;
    case subtitleRole:
        return subtitle(clip);
    case imageFileNameRole:
        return clip.imageFileName;
    case maskRole:
        return clip.secret.isEmpty() ? QStringList() : secretRuns(clip);
    case spokenRole:
        return spoken(clip);
    default:
        return {};
    }
}

QHash<int, QByteArray> ClipListModel::roleNames() const {
    return {{titleRole, "title"},
            {iconRole, "icon"},
            {pinnedRole, "pinned"},
            {subtitleRole, "subtitle"},
            {imageFileNameRole, "imageFileName"},
            {maskRole, "mask"},
            {spokenRole, "spoken"}};
}

void ClipListModel::setSearch(const QString& search) {
    if (search == search_) {
        return;
    }
    search_ = search;
    textSearch_.setWanted(search);
    Q_EMIT searchChanged();
    update();
}

void ClipListModel::setTooLarge(const TooLargeCopy& copy) {
    tooLarge_ = {copy,
                 {QUuid::createUuid(),
                  tr("Too large to keep"),
                  ClipKind::text,
                  scheduler_.now(),
                  false,
                  {}}};
    update();
}

void ClipListModel::dismissTooLarge() {
    tooLarge_.reset();
    update();
}

void ClipListModel::refreshDates() {
    if (count() > 0) {
        Q_EMIT dataChanged(index(0), index(count() - 1), {subtitleRole, spokenRole});
    }
}

Seconds ClipListModel::untilDatesChange() const {
    const Date now = scheduler_.now();
    Seconds until = Seconds::max();
    for (const ClipItem& clip : rows()) {
        until = std::min(until, RelativeDate::untilChange(clip.date, now));
        if (const auto left = store_.untilForgotten(clip)) {
            const Date end{now.sinceReference + left->count()};
            until = std::min(until, RelativeDate::untilChange(end, now));
        }
    }
    return until;
}

QUuid ClipListModel::idAt(int row) const {
    return row >= 0 && row < count() ? rows()[row].id : QUuid();
}

bool ClipListModel::isSecret(int row) const {
    return row >= 0 && row < count() && !rows()[row].secret.isEmpty();
}

void ClipListModel::update() {
    apply(found());
    const auto row =
        std::ranges::find_if(rows(), [this](const ClipItem& one) { return isTooLarge(one); });
    const int now = row == rows().end() ? -1 : static_cast<int>(row - rows().begin());
    if (std::exchange(tooLargeRow_, now) != now) {
        Q_EMIT tooLargeRowChanged();
    }
}

QList<ClipItem> ClipListModel::found() {
    if (search_.isEmpty()) {
        QList<ClipItem> all = store_.clips();
        if (tooLarge_) {
            all.insert(std::ranges::find(all, false, &ClipItem::pinned), tooLarge_->record);
        }
        return all;
    }
    QList<ClipItem> found;
    for (const ClipItem& clip : store_.clips()) {
        if (isFound(clip)) {
            found.append(clip);
        }
    }
    return found;
}

/// A secret is found by what is shown of it.
bool ClipListModel::isFound(const ClipItem& clip) {
    return clip.secret.isEmpty()
               ? textSearch_.finds(clip.id, clip.text)
               : (title(clip) + u' ' + secretKind(clip)).contains(search_, Qt::CaseInsensitive);
}

QString ClipListModel::spoken(const ClipItem& clip) const {
    if (clip.secret.isEmpty()) {
        return title(clip);
    }
    constexpr double minute = 60;
    const auto left = store_.untilForgotten(clip);
    if (!left) {
        return secretSpoken(clip);
    }
    const int minutes = static_cast<int>(left->count() / minute);
    const QString end = minutes == 0   ? tr("forgotten in less than a minute")
                        : minutes == 1 ? tr("forgotten in 1 minute")
                                       : tr("forgotten in %1 minutes").arg(minutes);
    return secretSpoken(clip) + u", "_s + end;
}

QString ClipListModel::secretSubtitle(const ClipItem& clip) const {
    const auto left = store_.untilForgotten(clip);
    const Date now = scheduler_.now();
    const QString end =
        left ? tr("forgotten %1").arg(relativeDate_.text({now.sinceReference + left->count()}, now))
             : tr("in memory only");
    return secretKind(clip) + u" \u00b7 "_s + end;
}

QString ClipListModel::subtitle(const ClipItem& clip) const {
    if (!clip.secret.isEmpty()) {
        return secretSubtitle(clip);
    }
    const Date now = scheduler_.now();
    const QString ago = relativeDate_.text(clip.date, now);
    if (tooLarge_ && isTooLarge(clip)) {
        const bool recent = now.sinceReference - clip.date.sinceReference < justNow.count();
        return tooLargeDetail(tooLarge_->copy, locale_) + u" \u00b7 "_s +
               (recent ? tr("just now") : ago);
    }
    return clip.pinned ? tr("Pinned \u00b7 %1").arg(ago) : ago;
}

bool ClipListModel::isTooLarge(const ClipItem& row) const {
    return tooLarge_ && row.id == tooLarge_->record.id;
}

} // namespace ravelo
