#pragma once

#include "base/Handle.h"
#include "store/history/ClipForms.h"
#include "ui/controls/OutgoingDrag.h"

#include <QQuickItem>

namespace ravelo {

class DetachedJobs;
class Scheduler;
class Store;
struct ClipItem;

/// Drags clips out of the panel: a text in all its forms, several texts as one, an image, or files.
/// Main thread.
class ClipDrag : public OutgoingDrag {
    Q_OBJECT

public:
    /// All outlive this.
    ClipDrag(Store& store, DetachedJobs& jobs, Scheduler& scheduler)
        : store_(store), jobs_(jobs), scheduler_(scheduler) {}

    /// Begins once the clip is read, if the button is still held by then.
    void start(const ClipItem& clip, QQuickItem& from);
    void start(const QString& text, QQuickItem& from);

private:
    struct Picture {
        QString extension; ///< Of the file icon under the pointer.
        double scale;
    };

    void read(const QString& text, const QString& path, const Picture& picture);
    void dragForms(const QList<PasteboardEntry>& forms, const Picture& picture);

    Store& store_;
    DetachedJobs& jobs_;
    Scheduler& scheduler_;
    Handle reading_;
};

} // namespace ravelo
