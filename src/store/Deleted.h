#pragma once

#include "base/OwnFile.h"
#include "store/Records.h"

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QUuid>

#include <optional>
#include <variant>

namespace ravelo {

/// A record that was deleted.
struct DeletedRecord {
    std::variant<ClipItem, Snippet> record;
    QList<QUuid> order;            ///< The ids of its list, just before.
    std::optional<QByteArray> png; ///< What was in its image file, if it had one.
};

/// Those of `before` that are not in `after`, the last first.
template <typename Record>
[[nodiscard]] QList<DeletedRecord> deletedRecords(const QList<Record>& before,
                                                  const QList<Record>& after) {
    QList<QUuid> order;
    for (const Record& record : before) {
        order.append(record.id);
    }
    QSet<QUuid> left;
    for (const Record& record : after) {
        left.insert(record.id);
    }
    QList<DeletedRecord> deleted;
    for (const Record& record : before) {
        if (!left.contains(record.id)) {
            deleted.prepend({record, order, {}});
        }
    }
    return deleted;
}

/// Where in `list` a record belongs that comes back: behind the nearest one that was before it in
/// `order` and is still there, else before the nearest one that was behind it, else at the end.
template <typename Record>
[[nodiscard]] qsizetype placeFor(const QUuid& id, const QList<QUuid>& order,
                                 const QList<Record>& list) {
    const auto find = [&list](const QUuid& one) {
        for (qsizetype i = 0; i < list.size(); ++i) {
            if (list[i].id == one) {
                return i;
            }
        }
        return qsizetype(-1);
    };
    const qsizetype own = order.indexOf(id);
    for (qsizetype i = own - 1; i >= 0; --i) {
        if (const qsizetype place = find(order[i]); place >= 0) {
            return place + 1;
        }
    }
    for (qsizetype i = own + 1; i < order.size(); ++i) {
        if (const qsizetype place = find(order[i]); place >= 0) {
            return place;
        }
    }
    return list.size();
}

/// What was deleted and may come back: in memory alone, with its images. If it is too much, what
/// was deleted first is lost. Created on the main thread; after that only the worker's jobs use it.
class Deleted {
public:
    /// Bytes.
    static constexpr qint64 limit = qint64(64) << 20;

    /// Reads the images of the records, which are in `folder`. The last record is the most
    /// precious one.
    void add(const QList<DeletedRecord>& records, const QString& folder);

    struct Restorable {
        QList<DeletedRecord> records; ///< In the order in which they are to be put back.
        QString problem;              ///< Why not all, in words fit for the user.
        bool someStay = false;        ///< Their images could not be written: worth another try.
    };

    /// Hands over the records whose images are written to `folder` again; the others stay.
    [[nodiscard]] Restorable restore(const QString& folder, const OwnFile::Permission& mayWrite);

private:
    QList<DeletedRecord> records_;
    qint64 bytes_ = 0;
    bool someLost_ = false;
};

} // namespace ravelo
