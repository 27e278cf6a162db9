#include "ui/shelf/ReceivedModel.h"

#include "shelf/ReceivedWatcher.h"
#include "ui/shelf/ShelfModels.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds justNow(60);

} // namespace

ReceivedModel::ReceivedModel(ReceivedWatcher& watcher, const Scheduler& scheduler,
                             const QLocale& locale)
    : watcher_(watcher),
      scheduler_(scheduler),
      relativeDate_(locale),
      changes_(watcher.onChange([this] { update(); })) {
    update();
}

QVariant ReceivedModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const ReceivedFile& file = rows()[index.row()];
    switch (role) {
    case fileRole:
        return file.id;
    case nameRole:
        return fileName(file.id);
    case agoRole:
        return ago(file.came);
    default:
        return {};
    }
}

QHash<int, QByteArray> ReceivedModel::roleNames() const {
    return {{fileRole, "file"}, {nameRole, "name"}, {agoRole, "ago"}};
}

QUrl ReceivedModel::folder() const {
    return QUrl::fromLocalFile(watcher_.folder());
}

void ReceivedModel::refreshDates() {
    if (!rows().isEmpty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {agoRole});
    }
}

Seconds ReceivedModel::untilDatesChange() const {
    const Date now = scheduler_.now();
    Seconds until = Seconds::max();
    for (const ReceivedFile& file : rows()) {
        const Seconds ago(now.sinceReference - file.came.sinceReference);
        until = std::min(until,
                         ago < justNow ? justNow - ago : RelativeDate::untilChange(file.came, now));
    }
    return until;
}

QUrl ReceivedModel::fileAt(int row) const {
    return row >= 0 && row < rowCount() ? rows()[row].id : QUrl();
}

void ReceivedModel::update() {
    QHash<QUrl, Date> known;
    for (const ReceivedFile& file : rows()) {
        known.insert(file.id, file.came);
    }
    const Date now = scheduler_.now();
    QList<ReceivedFile> files;
    for (const QUrl& file : watcher_.files()) {
        files.append({file, known.value(file, now)});
    }
    const int before = count();
    apply(files);
    if (count() != before) {
        Q_EMIT countChanged();
    }
    if (std::exchange(receiving_, watcher_.receiving()) != receiving_) {
        Q_EMIT receivingChanged();
    }
}

QString ReceivedModel::ago(Date came) const {
    const Date now = scheduler_.now();
    return Seconds(now.sinceReference - came.sinceReference) < justNow
               ? tr("just now")
               : relativeDate_.text(came, now);
}

} // namespace ravelo
