#pragma once

#include "store/Store.h"

#include <QLocale>
#include <QObject>
#include <QSet>
#include <QUuid>

#include <functional>
#include <memory>

namespace ravelo {

class Toast;

/// Deletes with undo while the toast is shown. Further deletions in that time join the same undo.
/// Main thread.
class Deleting : public QObject {
    Q_OBJECT

public:
    /// What the toast says.
    struct Message {
        QString one;  ///< About one record.
        QString many; ///< About several; "%1" is their number.

        friend bool operator==(const Message&, const Message&) = default;
    };

    /// Puts what it deletes into `records` and returns how many those are.
    using Remove = std::function<qsizetype(const std::shared_ptr<Deleted>& records)>;

    Deleting(Store& store, Toast& toast, const QLocale& locale);

    void run(const Remove& remove, const Message& message);
    /// With a message for any record.
    void run(const Remove& remove);

Q_SIGNALS:
    /// These were deleted and are back in the history, as far as possible.
    void clipsRestored(const QSet<QUuid>& ids);

private:
    struct Offered;

    void undo(const std::shared_ptr<Offered>& what);
    void report(const std::shared_ptr<Offered>& what, const Store::Restored& restored);

    Store& store_;
    Toast& toast_;
    QLocale locale_;
    std::weak_ptr<Offered> last_; ///< Lives as long as the toast offers it.
};

} // namespace ravelo
