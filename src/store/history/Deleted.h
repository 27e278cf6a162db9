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

class Vault;

/// A record that was deleted.
struct DeletedRecord {
    std::variant<ClipItem, Snippet> record;
    QList<QUuid> order;            ///< The ids of its list just before.
    std::optional<QByteArray> png; ///< Contents of its image file, if it had one.
    /// What was kept beside it, if anything; empty once it is back on the disk.
    std::optional<QByteArray> forms{};
};

/// The records of `before` that are not in `after`, last first.
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

/// The index in `list` for a record that comes back: after its nearest predecessor in `order` that
/// is still there, else before its nearest successor, else at the end.
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

/// Deleted records that may come back, with their images, in memory only. If they are too many, the
/// oldest deletions are lost. Created on the main thread; then used by the worker's jobs only.
class Deleted {
public:
    /// Bytes.
    static constexpr qint64 limit = qint64(64) << 20;

    /// Reads the images of the records from `folder`. The last record is dropped last.
    void add(const QList<DeletedRecord>& records, const QString& folder, const Vault& vault);

    struct Restorable {
        QList<DeletedRecord> records; ///< In the order to put them back.
        QString problem;              ///< Why not all; for the user.
        bool someStay = false;        ///< Some images could not be written; a retry may succeed.
    };

    /// Returns the records whose images are written to `folder` again; the others stay.
    [[nodiscard]] Restorable restore(const QString& folder, const Vault& vault,
                                     const OwnFile::Permission& mayWrite);

private:
    QList<DeletedRecord> records_;
    qint64 bytes_ = 0;
    bool someLost_ = false;
};

} // namespace ravelo
