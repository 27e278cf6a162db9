#include "ui/shelf/ShelfContents.h"

#include "store/Store.h"
#include "ui/controls/Toast.h"

#include <QPointer>
#include <QScopedValueRollback>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Tiles exist this far beyond the visible area.
constexpr double ahead = 120;

/// A file that does not answer is as unusable as a missing one.
QSet<QUrl> missingOf(const FileLook::Found& found) {
    QSet<QUrl> missing;
    for (const auto& [file, presence] : found.asKeyValueRange()) {
        if (presence != Presence::there) {
            missing.insert(file);
        }
    }
    return missing;
}

QStringList idsOf(const QList<QUrl>& files) {
    QHash<QUrl, int> seen;
    QStringList ids;
    ids.reserve(files.size());
    for (const QUrl& file : files) {
        ids.append(file.toString(QUrl::FullyEncoded) + u' ' + QString::number(seen[file]++));
    }
    return ids;
}

} // namespace

ShelfContents::ShelfContents(Store& store, DetachedJobs& jobs, Scheduler& scheduler, Toast& toast)
    : store_(store), look_(jobs, scheduler), toast_(toast) {
    connect(&store, &Store::shelfChanged, this, &ShelfContents::update);
    update();
}

bool ShelfContents::hasSelection() const {
    return !store_.shelf().selected.isEmpty();
}

bool ShelfContents::isAllSelected() const {
    return store_.shelf().selectedFiles().size() == files_.size();
}

QString ShelfContents::header() const {
    if (hasSelection()) {
        return tr("%1 selected").arg(store_.shelf().selectedFiles().size());
    }
    return count() == 1 ? tr("1 file") : tr("%1 files").arg(count());
}

QString ShelfContents::selectText() const {
    return isAllSelected() ? tr("Deselect") : tr("Select all");
}

void ShelfContents::lookForMissing() {
    if (looking_) { // Its files would be reported as hanging.
        lookAgain_ = true;
        return;
    }
    looking_ = true;
    look_.look(files_, [this](const FileLook::Found& found) {
        const QSet<QUrl> missing = missingOf(found);
        looking_ = false;
        if (std::exchange(lookAgain_, false)) {
            lookForMissing();
        }
        if (std::exchange(missing_, missing) != missing) {
            showSight();
        }
    });
}

void ShelfContents::lay(double width) {
    if (width > 0 && std::exchange(width_, width) != width) {
        layTiles();
        Q_EMIT changed();
        showSight();
    }
}

void ShelfContents::setSight(double top, double height) {
    top_ = top;
    bottom_ = top + height;
    showSight();
}

void ShelfContents::toggle(int place) {
    if (place >= 0 && place < count()) {
        store_.toggleSelectStack({files_[place]});
    }
}

void ShelfContents::toggleStack(int stack) {
    store_.toggleSelectStack(store_.shelf().stacks.value(stack));
}

void ShelfContents::selectAllOrNone() {
    store_.toggleSelectStack(files_);
}

void ShelfContents::remove(const QUrl& file) {
    remove(QList{file});
}

void ShelfContents::removeSelected() {
    remove(store_.shelf().selectedFiles());
}

void ShelfContents::remove(const QList<QUrl>& files) {
    // What the toast already offers to restore, and what was parked since.
    const auto offered = before_.lock();
    const auto before =
        std::make_shared<const Shelf>(offered ? store_.shelf().restored(*offered) : store_.shelf());
    store_.removeFromShelf(files);
    const qsizetype gone = store_.shelf().goneSince(*before).size();
    if (gone > 0) {
        before_ = before;
        toast_.offer(gone == 1 ? tr("Removed") : tr("%1 removed").arg(gone), tr("Undo"),
                     [self = QPointer(this), before] {
                         if (self) {
                             self->restore(*before);
                         }
                     });
    }
}

void ShelfContents::restore(const Shelf& before) {
    before_.reset(); // Later removals get an undo of their own.
    store_.restoreShelf(before);
    toast_.flash(tr("Restored \u2713"));
}

void ShelfContents::park(const QUrl& file) {
    store_.addToShelf({file});
}

QList<QUrl> ShelfContents::chosen() const {
    return hasSelection() ? store_.shelf().selectedFiles() : files_;
}

QList<QUrl> ShelfContents::filesToDrag() const {
    QList<QUrl> files = chosen();
    files.removeIf([this](const QUrl& file) { return missing_.contains(file); });
    return files;
}

QUrl ShelfContents::fileAt(int place) const {
    return files_.value(place);
}

QRectF ShelfContents::rectOf(int place) const {
    return layout_.tiles.value(place);
}

int ShelfContents::above(int place) const {
    return layout_.above(place);
}

int ShelfContents::below(int place) const {
    return layout_.below(place);
}

void ShelfContents::update() {
    const QList<QUrl> before = std::exchange(files_, store_.shelf().files());
    if (files_ != before) {
        ids_ = idsOf(files_);
        layTiles();
    }
    if (files_.size() > before.size()) {
        lookForMissing();
    }
    const QScopedValueRollback parking(parking_, files_.size() > before.size());
    Q_EMIT changed();
    showSight();
}

void ShelfContents::layTiles() {
    QList<qsizetype> sizes;
    for (const QList<QUrl>& stack : store_.shelf().stacks) {
        sizes.append(stack.size());
    }
    layout_ = ShelfLayout(sizes, width_);
}

void ShelfContents::showSight() {
    const auto isInSight = [this](const QRectF& rect) {
        return rect.bottom() > top_ - ahead && rect.y() < bottom_ + ahead;
    };
    const QSet<QUrl>& selected = store_.shelf().selected;
    QList<ShelfTile> tiles;
    for (qsizetype i = 0; i < layout_.tiles.size(); ++i) {
        const QRectF& rect = layout_.tiles[i];
        if (isInSight(rect)) {
            const QUrl& file = files_[i];
            tiles.append({ids_[i], static_cast<int>(i), file, rect.topLeft(),
                          selected.contains(file), missing_.contains(file)});
        }
    }
    QList<ShelfTray> trays;
    for (qsizetype i = 0; i < layout_.trays.size(); ++i) {
        if (isInSight(layout_.trays[i])) {
            trays.append({static_cast<int>(i), layout_.trays[i]});
        }
    }
    trays_.show(trays);
    tiles_.show(tiles);
}

} // namespace ravelo
