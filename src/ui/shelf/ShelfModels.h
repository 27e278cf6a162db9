#pragma once

#include "ui/lists/KeyedListModel.h"

#include <QPointF>
#include <QQmlEngine>
#include <QRectF>
#include <QUrl>

namespace ravelo {

/// A parked file and where it stands.
struct ShelfTile {
    QString id;    ///< Its address, and which of its equals it is.
    int place = 0; ///< Among all files of the shelf.
    QUrl file;
    QPointF corner;
    bool selected = false;
    bool missing = false;

    friend bool operator==(const ShelfTile&, const ShelfTile&) = default;
};

/// Tiles, for QML.
class ShelfTiles : public KeyedListModel<ShelfTile> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the shelf has one")

public:
    enum Role {
        placeRole = Qt::UserRole,
        nameRole,
        pictureRole,
        cornerRole,
        selectedRole,
        missingRole
    };

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void show(const QList<ShelfTile>& tiles) { takeOver(tiles); }
};

/// What lies below the tiles of one stack.
struct ShelfTray {
    int id = 0; ///< Which of the stacks.
    QRectF rect;

    friend bool operator==(const ShelfTray&, const ShelfTray&) = default;
};

class ShelfTrays : public KeyedListModel<ShelfTray> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the shelf has one")

public:
    enum Role { stackRole = Qt::UserRole, rectRole };

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void show(const QList<ShelfTray>& trays) { takeOver(trays); }
};

/// The last part of its path.
[[nodiscard]] QString fileName(const QUrl& file);

} // namespace ravelo
