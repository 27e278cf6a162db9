#include "ui/clips/ClipListModel.h"

#include "store/Store.h"
#include "ui/clips/SecretText.h"
#include "ui/preview/ProgramName.h"

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

ClipListModel::ClipListModel(Store& store, Scheduler& scheduler, const QLocale& locale)
    : store_(store),
      scheduler_(scheduler),
      search_(locale),
      relativeDate_(locale),
      locale_(locale) {
    connect(&store, &Store::cleared, this, &ClipListModel::dismissTooLarge);
    connect(&store, &Store::clipsChanged, this, &ClipListModel::update);
    connect(&store, &Store::detailsChanged, this, &ClipListModel::detailsFound);
    connect(&selection_, &ClipSelection::changed, this, [this] {
        if (count() > 0) {
            Q_EMIT dataChanged(index(0), index(count() - 1), {orderRole});
        }
    });
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
    case orderRole:
        return selection_.orderOf(clip.id);
    case marksRole:
        return QVariant::fromValue(search_.marks(title(clip)));
    case maskRole:
        return clip.secret.isEmpty() ? QStringList() : secretRuns(clip);
    case spokenRole:
        return spoken(clip);
    case agoRole:
        return relativeDate_.text(clip.date, scheduler_.now());
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
            {orderRole, "order"},
            {marksRole, "marks"},
            {maskRole, "mask"},
            {spokenRole, "spoken"},
            {agoRole, "ago"}};
}

void ClipListModel::setSearch(const QString& written) {
    if (written == search_.written()) {
        return;
    }
    search_.setWritten(written, scheduler_.now());
    if (search_.query().needsDetails()) {
        store_.lookUpDetails();
    }
    isNewSearch_ = true;
    searching_.reset();
    Q_EMIT searchChanged();
    update();
}

void ClipListModel::finishSearch() {
    if (searching_) {
        while (!search_.advance()) {
        }
        show(search_.take());
    }
}

QString ClipListModel::tally() const {
    return search().isEmpty() ? QString() : tr("%1 of %2").arg(count()).arg(store_.clips().size());
}

QString ClipListModel::nothingFound() const {
    const ClipQuery& query = search_.query();
    if (!search().isEmpty() && search_.gaveUp()) {
        return tr("This expression takes too long");
    }
    return !query.program.isEmpty() && origins_ == Origins::hidden
               ? tr("Turn on \u201cShow program and size in the list\u201d to find programs")
               : query.nothingFound();
}

void ClipListModel::setOrigins(Origins origins) {
    if (std::exchange(origins_, origins) == origins) {
        return;
    }
    if (origins == Origins::shown) {
        store_.lookUpDetails();
    }
    refreshDates();
}

void ClipListModel::detailsFound() {
    if (search_.query().needsDetails()) {
        update();
    }
    if (origins_ == Origins::shown) {
        refreshDates();
    }
    Q_EMIT detailsKnown();
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
        Q_EMIT dataChanged(index(0), index(count() - 1), {subtitleRole, spokenRole, agoRole});
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

QList<QUuid> ClipListModel::idsBetween(int from, int to) const {
    QList<QUuid> ids;
    const int step = from <= to ? 1 : -1;
    for (int row = from; row != to + step; row += step) {
        if (row != tooLargeRow_ && !idAt(row).isNull()) {
            ids.append(idAt(row));
        }
    }
    return ids;
}

int ClipListModel::rowOf(const QUuid& id) const {
    const auto row = std::ranges::find(rows(), id, &ClipItem::id);
    return row == rows().end() ? -1 : static_cast<int>(row - rows().begin());
}

bool ClipListModel::isSecret(int row) const {
    return row >= 0 && row < count() && !rows()[row].secret.isEmpty();
}

void ClipListModel::update() {
    if (origins_ == Origins::shown) {
        store_.lookUpDetails(); // Of new images.
    }
    if (search().isEmpty()) {
        (void)search_.take(); // Not the clips of a search that was not done.
        show(allRows());
        return;
    }
    search_.begin(store_.clips(), [this](const QUuid& id) { return store_.detailsOf(id); });
    continueSearch();
}

void ClipListModel::continueSearch() {
    if (search_.advance()) {
        show(search_.take());
    } else { // Keys and frames come first.
        searching_ = scheduler_.after(Seconds(0), [this] { continueSearch(); });
    }
}

QList<ClipItem> ClipListModel::allRows() const {
    QList<ClipItem> all = store_.clips();
    if (tooLarge_) {
        const auto unpinned = std::ranges::find(std::as_const(all), false, &ClipItem::pinned);
        all.insert(unpinned, tooLarge_->record);
    }
    return all;
}

void ClipListModel::show(const QList<ClipItem>& clips) {
    searching_.reset();
    apply(clips);
    Q_EMIT found();
    selection_.keepOnly(idsBetween(0, count() - 1));
    const auto row =
        std::ranges::find_if(rows(), [this](const ClipItem& one) { return isTooLarge(one); });
    const int now = row == rows().end() ? -1 : static_cast<int>(row - rows().begin());
    if (std::exchange(tooLargeRow_, now) != now) {
        Q_EMIT tooLargeRowChanged();
    }
    if ((isNewSearch_ || !search().isEmpty()) && count() > 0) {
        Q_EMIT dataChanged(index(0), index(count() - 1), {marksRole});
    }
    if (std::exchange(isNewSearch_, false)) {
        Q_EMIT searched();
    }
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
    QStringList parts = clip.pinned ? QStringList{tr("Pinned")} : QStringList();
    if (origins_ == Origins::shown) {
        const ClipDetails details = store_.detailsOf(clip.id);
        parts += {size(clip, details), programName(details.program)};
        parts.removeAll(QString());
    }
    return (parts + QStringList{ago}).join(u" \u00b7 "_s);
}

/// In the measure of its kind; empty for a text.
QString ClipListModel::size(const ClipItem& clip, const ClipDetails& details) const {
    if (clip.kind == ClipKind::image) {
        return details.pixels.isEmpty()
                   ? QString()
                   : tr("%1 \u00d7 %2").arg(details.pixels.width()).arg(details.pixels.height());
    }
    return details.files == 0   ? QString()
           : details.files == 1 ? tr("1 file")
                                : tr("%1 files").arg(locale_.toString(details.files));
}

bool ClipListModel::isTooLarge(const ClipItem& row) const {
    return tooLarge_ && row.id == tooLarge_->record.id;
}

} // namespace ravelo
