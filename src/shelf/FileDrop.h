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

    /// Of the newest drag. The first call asks its source, so that the answer is there at the drop.
    [[nodiscard]] Carries carries();

    /// The newest drag was dropped on us: hands its files to `done` once they are there, now or
    /// later; never an empty list.
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
    std::list<Drop> drops_;
    Handle answers_;
};

} // namespace ravelo
