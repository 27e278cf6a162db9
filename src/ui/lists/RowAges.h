#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"

#include <QAbstractItemModel>

#include <concepts>

namespace ravelo {

/// Rows with relative dates.
class AgingRows {
public:
    virtual ~AgingRows() = default;

    /// Updates all dates to now.
    virtual void refreshDates() = 0;

    /// Time until `refreshDates` changes anything; the maximum if never.
    [[nodiscard]] virtual Seconds untilDatesChange() const = 0;
};

/// Updates the relative dates of a model's rows ("2 min. ago") while they are visible, with one
/// timer for the next change. Main thread.
class RowAges : public QObject {
    Q_OBJECT

public:
    /// The model is one of `AgingRows`. Both outlive this.
    template <std::derived_from<AgingRows> Model>
    RowAges(Scheduler& scheduler, Model& model) : scheduler_(scheduler), rows_(model) {
        follow(model);
    }

    void start();
    void stop();

private:
    void follow(const QAbstractItemModel& model);
    void awaitNext();

    Scheduler& scheduler_;
    AgingRows& rows_;
    bool running_ = false;
    Handle tick_;
};

} // namespace ravelo
