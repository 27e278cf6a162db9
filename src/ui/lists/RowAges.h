#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"

#include <QAbstractItemModel>

namespace ravelo {

/// Rows that say how old something is.
class AgingRows {
public:
    virtual ~AgingRows() = default;

    /// Says every age relative to the present moment.
    virtual void refreshDates() = 0;

    /// After how long `refreshDates` makes a difference; the maximum if never.
    [[nodiscard]] virtual Seconds untilDatesChange() const = 0;
};

/// Keeps the ages in the rows of a model right ("2 min. ago") while they are on the screen, by one
/// timer for the next one that changes. Main thread.
class RowAges : public QObject {
    Q_OBJECT

public:
    /// `model` are the same rows. All outlive it.
    RowAges(Scheduler& scheduler, AgingRows& rows, const QAbstractItemModel& model);

    void start();
    void stop();

private:
    void awaitNext();

    Scheduler& scheduler_;
    AgingRows& rows_;
    bool running_ = false;
    Handle tick_;
};

} // namespace ravelo
