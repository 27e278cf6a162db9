#pragma once

#include "base/Handle.h"
#include "clipboard/CapturePlan.h"
#include "clipboard/CaptureRules.h"

#include <QObject>

namespace ravelo {

class CapturePause;
class Scheduler;
class SelectedText;
class Store;

/// Makes clips of the texts that are selected elsewhere, once the user has stopped selecting. The
/// same rules hold as for copies; images are never read. A cleared history or a pause also drops
/// what was about to be read. Main thread.
class SelectedTexts : public QObject {
    Q_OBJECT

public:
    /// All outlive this. Off at first.
    SelectedTexts(Store& store, SelectedText& selection, Scheduler& scheduler,
                  const CapturePause& pause);

    void setOn(bool on);

    void setTextEnds(TextEnds ends) { textEnds_ = ends; }

    void setRules(CaptureRules rules) { rules_ = std::move(rules); }

private:
    void drop();
    void wait();
    void read();
    void keep(const PasteboardSnapshot& snapshot);

    Store& store_;
    SelectedText& selection_;
    Scheduler& scheduler_;
    const CapturePause& pause_;
    TextEnds textEnds_ = TextEnds::trimmed;
    CaptureRules rules_;
    Handle changes_;
    Handle rest_;
    Handle reading_;
};

} // namespace ravelo
