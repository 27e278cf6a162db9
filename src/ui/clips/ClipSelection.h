#pragma once

#include <QList>
#include <QObject>
#include <QUuid>

namespace ravelo {

/// Several clips that were chosen to be copied as one, in the order of choosing. Main thread.
class ClipSelection : public QObject {
    Q_OBJECT

public:
    [[nodiscard]] const QList<QUuid>& ids() const { return ids_; }

    /// From 1; 0 if it is not chosen.
    [[nodiscard]] int orderOf(const QUuid& id) const {
        return static_cast<int>(ids_.indexOf(id)) + 1;
    }

    /// Adds it as the last one, or removes it.
    void toggle(const QUuid& id);

    /// Chooses these, instead of others, from `anchor` on.
    void choose(const QUuid& anchor, const QList<QUuid>& ids);

    /// Where choosing a range began; null if nothing is chosen.
    [[nodiscard]] QUuid anchor() const { return anchor_; }

    /// Only those stay chosen that are in `existing`.
    void keepOnly(const QList<QUuid>& existing);

    void clear() { choose({}, {}); }

Q_SIGNALS:
    void changed();

private:
    QList<QUuid> ids_;
    QUuid anchor_;
};

} // namespace ravelo
