#pragma once

#include "base/Handle.h"
#include "shelf/OfferedFiles.h"

#include <functional>
#include <list>

namespace ravelo {

class FileTransfer;

/// Gets the files of drops on the panel. They may arrive after the button is released, and after
/// the next drag has begun. Main thread.
class FileDrop {
public:
    using Done = std::function<void(const QList<QUrl>&)>;

    /// `answered` is called when more is known of the drag over the window.
    FileDrop(FileTransfer& transfers, std::function<void()> answered);

    /// A drag with this offer is over our window. Asks its source, so that the answer is there at
    /// the drop.
    Carries enter(std::shared_ptr<DragOffer> offer);

    /// What the drag that entered last carries.
    [[nodiscard]] Carries carries() { return over_.carries(); }

    /// The drag was dropped on us: hands its files to `done` once they are there, now or later;
    /// never an empty list.
    void drop(Done done);

private:
    /// A drop that waits for its files.
    struct Drop {
        OfferedFiles offered;
        Handle answers;
        std::function<void(const QList<QUrl>&)> answer;
        Handle retrieving; ///< The files, by a key.
        Handle loading;
    };

    void look(Drop& drop);
    void end(Drop& drop, const QList<QUrl>& files);

    FileTransfer& transfers_;
    std::function<void()> answered_;
    OfferedFiles over_; ///< Of the drag that entered last.
    Handle answers_;
    std::list<Drop> drops_;
};

} // namespace ravelo
