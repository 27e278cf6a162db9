#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QSet>

#include <algorithm>

namespace ravelo {

/// A list of records with an `id`. A new list is applied as row removals, moves, insertions and
/// changes, adjacent ones together, so that views can animate them.
template <typename Record>
class KeyedListModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }

protected:
    [[nodiscard]] const QList<Record>& rows() const { return rows_; }

    /// If ids repeat, the first record counts.
    void apply(const QList<Record>& all) {
        const QList<Record> now = distinct(all);
        removeMissing(now);
        const Ids had = idsOf(rows_);
        for (int row = 0; row < now.size(); ++row) {
            if (!had.contains(now[row].id)) {
                row = insertNew(now, row, had);
            } else {
                place(now[row], row);
            }
        }
    }

private:
    using Ids = QSet<decltype(Record::id)>;

    static Ids idsOf(const QList<Record>& records) {
        Ids ids;
        ids.reserve(records.size());
        for (const Record& record : records) {
            ids.insert(record.id);
        }
        return ids;
    }

    static QList<Record> distinct(const QList<Record>& records) {
        if (idsOf(records).size() == records.size()) {
            return records;
        }
        QList<Record> first;
        Ids seen;
        for (const Record& record : records) {
            if (!seen.contains(record.id)) {
                seen.insert(record.id);
                first.append(record);
            }
        }
        return first;
    }

    void removeMissing(const QList<Record>& now) {
        const Ids wanted = idsOf(now);
        const auto stays = [&](int row) {
            return wanted.contains(rows_[row].id);
        };
        for (int end = static_cast<int>(rows_.size()); end > 0;) {
            int first = end;
            while (first > 0 && !stays(first - 1)) {
                --first;
            }
            if (first < end) {
                beginRemoveRows({}, first, end - 1);
                rows_.remove(first, end - first);
                endRemoveRows();
            }
            end = first - 1;
        }
    }

    /// Returns the last inserted row.
    int insertNew(const QList<Record>& now, int first, const Ids& had) {
        int last = first;
        while (last + 1 < now.size() && !had.contains(now[last + 1].id)) {
            ++last;
        }
        beginInsertRows({}, first, last);
        rows_ = rows_.first(first) + now.sliced(first, last - first + 1) + rows_.sliced(first);
        endInsertRows();
        return last;
    }

    /// The record is in the list, and the rows before `row` are already final.
    void place(const Record& record, int row) {
        const auto found =
            std::find_if(rows_.begin() + row, rows_.end(),
                         [&record](const Record& other) { return other.id == record.id; });
        const auto from = static_cast<int>(found - rows_.begin());
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
