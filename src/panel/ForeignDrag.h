#pragma once

#include "shelf/OfferedFiles.h"

namespace ravelo {

class DragMonitor;

/// A drag of another program, before it reaches our window. Main thread.
class ForeignDrag {
public:
    explicit ForeignDrag(DragMonitor& drags); ///< `drags` must outlive it.

    /// To be called at each sight of the pointer without a button down: a drag that begins later
    /// belongs to the next press.
    void buttonsUp();

    /// Whether one has begun since the last sight without a button down.
    [[nodiscard]] bool isOn() const;

    /// Whether the newest drag carries files. Ask last: some sources make their files only when
    /// they are asked for them.
    [[nodiscard]] bool carriesFiles();

private:
    DragMonitor& drags_;
    qint64 idleCount_; ///< The count of drags last seen with no button down.
    OfferedFiles newest_;
};

} // namespace ravelo
