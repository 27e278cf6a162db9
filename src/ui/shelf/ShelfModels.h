#pragma once

#include "ui/lists/KeyedListModel.h"

#include <QPointF>
#include <QQmlEngine>
#include <QRectF>
#include <QUrl>

namespace ravelo {

/// A parked file and its position.
struct ShelfTile {
    QString id;    ///< Its URL and a number if the URL repeats.
    int place = 0; ///< Index among all files of the shelf.
    QUrl file;
    QPointF corner;
    bool selected = false;
    bool missing = false;

    friend bool operator==(const ShelfTile&, const ShelfTile&) = default;
};

/// The tiles, for QML.
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

    void show(const QList<ShelfTile>& tiles) { apply(tiles); }
};

/// The tray below the tiles of a stack.
struct ShelfTray {
    int id = 0; ///< Index of the stack.
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

    void show(const QList<ShelfTray>& trays) { apply(trays); }
};

/// Last component of the path.
[[nodiscard]] QString fileName(const QUrl& file);

} // namespace ravelo
