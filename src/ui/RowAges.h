#pragma once

#include "base/Handle.h"

#include <QObject>

namespace ravelo {

class ClipListModel;
class ReceivedModel;
class Scheduler;

/// Keeps the ages in the rows right ("2 min. ago") while the panel is open, by one timer for the
/// next one that changes. Main thread.
class RowAges : public QObject {
    Q_OBJECT

public:
    /// All outlive it.
    RowAges(Scheduler& scheduler, ClipListModel& clips, ReceivedModel& received);

    void start();
    void stop();

private:
    void refresh();
    void awaitNext();

    Scheduler& scheduler_;
    ClipListModel& clips_;
    ReceivedModel& received_;
    bool running_ = false;
    Handle tick_;
};

} // namespace ravelo
