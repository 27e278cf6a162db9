#include "ui/RowAges.h"

#include "ui/ClipListModel.h"
#include "ui/ReceivedModel.h"

#include <algorithm>

namespace ravelo {

namespace {

/// Rounding cannot put the look before the change.
constexpr Seconds margin{0.001};

} // namespace

RowAges::RowAges(Scheduler& scheduler, ClipListModel& clips, ReceivedModel& received)
    : scheduler_(scheduler), clips_(clips), received_(received) {
    for (const QAbstractItemModel* model :
         std::initializer_list<const QAbstractItemModel*>{&clips_, &received_}) {
        connect(model, &QAbstractItemModel::rowsInserted, this, &RowAges::awaitNext);
        connect(model, &QAbstractItemModel::dataChanged, this, &RowAges::awaitNext);
    }
}

void RowAges::start() {
    running_ = true;
    refresh();
}

void RowAges::stop() {
    running_ = false;
    tick_.reset();
}

void RowAges::refresh() {
    clips_.refreshDates();
    received_.refreshDates();
}

void RowAges::awaitNext() {
    const auto next = std::min(clips_.untilDatesChange(), received_.untilDatesChange());
    tick_ = running_ && next != Seconds::max()
                ? scheduler_.after(next + margin, [this] { refresh(); })
                : Handle();
}

} // namespace ravelo
