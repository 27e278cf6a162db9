#include "ui/shelf/ShelfModels.h"

#include "ui/images/FileThumb.h"

namespace ravelo {

QVariant ShelfTiles::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const ShelfTile& tile = rows()[index.row()];
    switch (role) {
    case placeRole:
        return tile.place;
    case nameRole:
        return fileName(tile.file);
    case pictureRole:
        return fileThumbAddress(tile.file);
    case cornerRole:
        return tile.corner;
    case selectedRole:
        return tile.selected;
    case missingRole:
        return tile.missing;
    default:
        return {};
    }
}

QHash<int, QByteArray> ShelfTiles::roleNames() const {
    return {{placeRole, "place"},   {nameRole, "name"},         {pictureRole, "picture"},
            {cornerRole, "corner"}, {selectedRole, "selected"}, {missingRole, "missing"}};
}

QVariant ShelfTrays::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const ShelfTray& tray = rows()[index.row()];
    return role == stackRole  ? QVariant(tray.id)
           : role == rectRole ? QVariant(tray.rect)
                              : QVariant();
}

QHash<int, QByteArray> ShelfTrays::roleNames() const {
    return {{stackRole, "stack"}, {rectRole, "rect"}};
}

QString fileName(const QUrl& file) {
    const QString name = file.adjusted(QUrl::StripTrailingSlash).fileName();
    return name.isEmpty() ? file.toLocalFile() : name;
}

} // namespace ravelo
