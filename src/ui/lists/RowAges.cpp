#include "ui/lists/RowAges.h"

namespace ravelo {

namespace {

/// Rounding must not put the update before the change.
constexpr Seconds margin{0.001};

} // namespace

void RowAges::follow(const QAbstractItemModel& model) {
    connect(&model, &QAbstractItemModel::rowsInserted, this, &RowAges::awaitNext);
    connect(&model, &QAbstractItemModel::dataChanged, this, &RowAges::awaitNext);
}

void RowAges::start() {
    running_ = true;
    rows_.refreshDates();
}

void RowAges::stop() {
    running_ = false;
    tick_.reset();
}

void RowAges::awaitNext() {
    const Seconds next = rows_.untilDatesChange();
    tick_ = running_ && next != Seconds::max()
                ? scheduler_.after(next + margin, [this] { rows_.refreshDates(); })
                : Handle();
}

} // namespace ravelo
