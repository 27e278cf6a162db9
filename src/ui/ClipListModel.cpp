#include "ui/ClipListModel.h"

#include "store/Store.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// More than any panel is wide; a clip may be megabytes long.
constexpr qsizetype titleLength = 1000;

QString title(const ClipItem& clip) {
    if (clip.kind == ClipKind::image) {
        return u"Image"_s;
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
    : store_(store), scheduler_(scheduler), textSearch_(locale), relativeDate_(locale) {
    connect(&store, &Store::clipsChanged, this, &ClipListModel::update);
    update();
}

QVariant ClipListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const ClipItem& clip = rows()[index.row()];
    switch (role) {
    case clipIdRole:
        return clip.id;
    case titleRole:
        return title(clip);
    case iconRole:
        return icon(clip.kind);
    case pinnedRole:
        return clip.pinned;
    case subtitleRole:
        return subtitle(clip);
    case imageFileNameRole:
        return clip.imageFileName;
    default:
        return {};
    }
}

QHash<int, QByteArray> ClipListModel::roleNames() const {
    return {{clipIdRole, "clipId"},     {titleRole, "title"},
            {iconRole, "icon"},         {pinnedRole, "pinned"},
            {subtitleRole, "subtitle"}, {imageFileNameRole, "imageFileName"}};
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

void ClipListModel::refreshDates() {
    if (count() > 0) {
        Q_EMIT dataChanged(index(0), index(count() - 1), {subtitleRole});
    }
}

QUuid ClipListModel::idAt(int row) const {
    return row >= 0 && row < count() ? rows()[row].id : QUuid();
}

void ClipListModel::update() {
    const int before = count();
    takeOver(found());
    if (count() != before) {
        Q_EMIT countChanged();
    }
}

QList<ClipItem> ClipListModel::found() {
    if (search_.isEmpty()) {
        return store_.clips();
    }
    QList<ClipItem> found;
    for (const ClipItem& clip : store_.clips()) {
        if (textSearch_.finds(clip.id, clip.text)) {
            found.append(clip);
        }
    }
    return found;
}

QString ClipListModel::subtitle(const ClipItem& clip) const {
    const QString ago = relativeDate_.text(clip.date, scheduler_.now());
    return clip.pinned ? u"Pinned \u00b7 "_s + ago : ago;
}

} // namespace ravelo
