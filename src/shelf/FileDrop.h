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

/// What a drag over our window carries, as far as its source has answered.
enum class Carries { unknown, files, nothing };

/// Gets the files of drops on the panel. They may still be on their way when the button goes up,
/// and when the next drag begins. Main thread.
class FileDrop {
public:
    using Done = std::function<void(const QList<QUrl>&)>;

    FileDrop(DragMonitor& drags, FileTransfer& transfers);

    /// The newest drag is over our window: asks its source, so that the answer is there at the
    /// drop. The rest is about this drag, even if the next one begins before its drop is handled.
    Carries enter();

    [[nodiscard]] Carries carries();

    /// The drag was dropped on us: hands its files to `done` once they are there, now or later;
    /// never an empty list.
    void take(Done done);

private:
    /// One that is still without its files.
    struct Drop {
        std::shared_ptr<const DragAnswers> answers;
        std::function<void(const QList<QUrl>&)> answer;
        Handle retrieving; ///< Them, by a key.
        Handle loading;
    };

    void look();
    void look(Drop& drop);
    void end(Drop& drop, const QList<QUrl>& files);

    DragMonitor& drags_;
    FileTransfer& transfers_;
    std::shared_ptr<const DragAnswers> over_; ///< Of the drag that entered last.
    std::list<Drop> drops_;
    Handle answers_;
};

} // namespace ravelo
