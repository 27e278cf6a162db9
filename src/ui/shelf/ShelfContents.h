#pragma once

#include "shelf/FileLook.h"
#include "ui/shelf/ShelfLayout.h"
#include "ui/shelf/ShelfModels.h"

#include <QObject>
#include <QQmlEngine>
#include <QSet>

#include <memory>

namespace ravelo {

class DetachedJobs;
class Scheduler;
class Store;
class Toast;
struct Shelf;

/// The parked files as shown in the panel. Only visible ones have a tile. Main thread.
class ShelfContents : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(ravelo::ShelfTiles* tiles READ tiles CONSTANT)
    Q_PROPERTY(ravelo::ShelfTrays* trays READ trays CONSTANT)
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY changed)
    Q_PROPERTY(QString header READ header NOTIFY changed)
    Q_PROPERTY(QString selectText READ selectText NOTIFY changed)
    Q_PROPERTY(double height READ height NOTIFY changed)
    Q_PROPERTY(bool parking READ isParking CONSTANT)

public:
    /// All outlive this.
    ShelfContents(Store& store, DetachedJobs& jobs, Scheduler& scheduler, Toast& toast);

    [[nodiscard]] ShelfTiles* tiles() { return &tiles_; }

    [[nodiscard]] ShelfTrays* trays() { return &trays_; }

    [[nodiscard]] int count() const { return static_cast<int>(files_.size()); }

    [[nodiscard]] bool hasSelection() const;

    [[nodiscard]] QString header() const;

    /// Of the button that selects all or none.
    [[nodiscard]] QString selectText() const;

    /// Of all tiles, in logical pixels.
    [[nodiscard]] double height() const { return layout_.height; }

    /// A tile created now is for a newly parked file, not one scrolled into view.
    [[nodiscard]] bool isParking() const { return parking_; }

    /// Checks which files are missing or do not answer. Asynchronous.
    Q_INVOKABLE void lookForMissing();

    /// Width for the tiles, in logical pixels.
    Q_INVOKABLE void lay(double width);

    /// The visible part of the tiles.
    Q_INVOKABLE void setSight(double top, double height);

    Q_INVOKABLE void toggle(int place);
    Q_INVOKABLE void toggleStack(int stack);
    Q_INVOKABLE void selectAllOrNone();
    /// The toast offers to undo it.
    Q_INVOKABLE void remove(const QUrl& file);
    Q_INVOKABLE void removeSelected();
    Q_INVOKABLE void park(const QUrl& file);

    /// The selected files, or all if none is selected.
    [[nodiscard]] Q_INVOKABLE QList<QUrl> chosen() const;

    /// Those of `chosen` not known to be missing.
    [[nodiscard]] Q_INVOKABLE QList<QUrl> filesToDrag() const;

    [[nodiscard]] Q_INVOKABLE QUrl fileAt(int place) const;
    [[nodiscard]] Q_INVOKABLE QRectF rectOf(int place) const;
    [[nodiscard]] Q_INVOKABLE int above(int place) const;
    [[nodiscard]] Q_INVOKABLE int below(int place) const;

Q_SIGNALS:
    void changed();

private:
    void remove(const QList<QUrl>& files);
    void restore(const Shelf& before);
    void update();
    void layTiles();
    void showSight();
    [[nodiscard]] bool isAllSelected() const;

    Store& store_;
    FileLook look_;
    Toast& toast_;
    std::weak_ptr<const Shelf> before_; ///< Before the removals that the toast offers to undo.
    ShelfTiles tiles_;
    ShelfTrays trays_;
    QList<QUrl> files_;
    QStringList ids_; ///< One per file.
    QSet<QUrl> missing_;
    ShelfLayout layout_;
    double width_ = 0;
    double top_ = 0;
    double bottom_ = 0;
    bool parking_ = false;
    bool looking_ = false;
    bool lookAgain_ = false;
};

} // namespace ravelo
