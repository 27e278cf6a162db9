#pragma once

#include "base/Scheduler.h"
#include "store/Records.h"
#include "ui/KeyedListModel.h"
#include "ui/RelativeDate.h"
#include "ui/TextSearch.h"

#include <QQmlEngine>

namespace ravelo {

class Store;

/// The clipboard history as the panel lists it: those clips that contain `search`, in the store's
/// order. Main thread.
class ClipListModel : public KeyedListModel<ClipItem> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the panel has one")
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        clipIdRole = Qt::UserRole,
        titleRole,
        iconRole, ///< Name of a symbol.
        pinnedRole,
        subtitleRole,
        imageFileNameRole,
    };

    ClipListModel(Store& store, const Scheduler& scheduler, const QLocale& locale);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] QString search() const { return search_; }

    void setSearch(const QString& search);

    [[nodiscard]] int count() const { return rowCount(); }

    /// Tells every date anew, relative to the present moment.
    void refreshDates();

    /// An invalid id where there is no such row.
    Q_INVOKABLE [[nodiscard]] QUuid idAt(int row) const;

Q_SIGNALS:
    void searchChanged();
    void countChanged();

private:
    void update();
    [[nodiscard]] QList<ClipItem> found();
    [[nodiscard]] QString subtitle(const ClipItem& clip) const;

    Store& store_;
    const Scheduler& scheduler_;
    TextSearch textSearch_;
    RelativeDate relativeDate_;
    QString search_;
};

} // namespace ravelo
