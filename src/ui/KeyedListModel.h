#pragma once

#include <QAbstractListModel>
#include <QList>

#include <algorithm>
#include <utility>

namespace ravelo {

/// A list of records that have an `id`. A new list is taken over by removing, moving, inserting and
/// changing single rows, so that the view can animate what really happened.
template <typename Record>
class KeyedListModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }

protected:
    [[nodiscard]] const QList<Record>& rows() const { return rows_; }

    void takeOver(const QList<Record>& now) {
        removeMissing(now);
        for (int row = 0; row < now.size(); ++row) {
            place(now[row], row);
        }
    }

private:
    static auto sameId(const Record& record) {
        return [&record](const Record& other) {
            return other.id == record.id;
        };
    }

    void removeMissing(const QList<Record>& now) {
        for (int row = static_cast<int>(rows_.size()) - 1; row >= 0; --row) {
            if (std::none_of(now.begin(), now.end(), sameId(rows_[row]))) {
                beginRemoveRows({}, row, row);
                rows_.removeAt(row);
                endRemoveRows();
            }
        }
    }

    /// The rows before `row` are in place already.
    void place(const Record& record, int row) {
        const auto found = std::find_if(rows_.begin() + row, rows_.end(), sameId(record));
        const auto from = static_cast<int>(found - rows_.begin());
        if (found == rows_.end()) {
            beginInsertRows({}, row, row);
            rows_.insert(row, record);
            endInsertRows();
            return;
        }
        if (from != row) {
            beginMoveRows({}, from, from, {}, row);
            rows_.move(from, row);
            endMoveRows();
        }
        if (!(rows_[row] == record)) {
            rows_[row] = record;
            Q_EMIT dataChanged(index(row), index(row));
        }
    }

    QList<Record> rows_;
};

} // namespace ravelo
