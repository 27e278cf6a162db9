#pragma once

#include "base/Handle.h"

#include <QList>
#include <QUrl>

#include <functional>
#include <list>
#include <memory>

namespace ravelo {

class DragMonitor;
class FileTransfer;
struct DragAnswers;

/// What a drag over our window carries, as far as is known.
enum class Carries { unknown, files, nothing };

/// Gets the files of drops on the panel. They may arrive after the button is released, and after
/// the next drag has begun. Main thread.
class FileDrop {
public:
    using Done = std::function<void(const QList<QUrl>&)>;

    FileDrop(DragMonitor& drags, FileTransfer& transfers);

    /// The newest drag entered our window: asks its source, to have the answer at the drop. The
    /// other functions are about this drag, even if the next one begins before the drop is handled.
    Carries enter();

    [[nodiscard]] Carries carries();

    /// The drag was dropped on us. Calls `done` with its files, now or later; not if there are
    /// none.
    void take(Done done);

private:
    /// A drop that waits for its files.
    struct Drop {
        std::shared_ptr<const DragAnswers> answers;
        std::function<void(const QList<QUrl>&)> answer;
        Handle retrieving; ///< The files, by a key.
        Handle loading;
    };

    void look();
    void look(Drop& drop);
    void end(Drop& drop, const QList<QUrl>& files);

    DragMonitor& drags_;
    FileTransfer& transfers_;
    std::shared_ptr<const DragAnswers> over_; ///< The drag that entered last.
    std::list<Drop> drops_;
    Handle answers_;
};

} // namespace ravelo
