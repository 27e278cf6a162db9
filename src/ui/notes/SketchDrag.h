#pragma once

#include "ui/controls/OutgoingDrag.h"

#include <QImage>
#include <QQuickItem>

#include <memory>

class QTemporaryDir;

namespace ravelo {

/// Drags a picture out of the panel: as its bytes, or as a file for those that ask for one. The
/// file is made only then, in the session's runtime folder (in memory, readable by its user alone),
/// and stays until the next drag. Main thread.
class SketchDrag : public OutgoingDrag {
    Q_OBJECT

public:
    SketchDrag();
    ~SketchDrag() override;

    /// Starts a drag, unless one is in progress. The item it starts from may be deleted meanwhile.
    void start(const QImage& picture, QQuickItem& from);

private:
    void dragPicture(const QImage& picture, double scale);

    std::shared_ptr<QTemporaryDir> folder_;
};

} // namespace ravelo
