#pragma once

#include "store/Records.h"

#include <optional>

namespace ravelo {

/// What an operation makes of the clipboard history.
struct ClipChange {
    QList<ClipItem> clips;
    QStringList orphanedImages; ///< Names of image files to be deleted.
};

/// The rules of the clipboard history, on its list. Nothing where the list stays as it is.
struct ClipHistory {
    /// Most clips that are kept; pinned ones neither count nor go.
    static constexpr int limit = 60;

    /// A text was copied. It is kept untrimmed, replaces unpinned clips of the same text, and
    /// counts as no change where it has only white space or is the newest unpinned text already.
    /// Image files of clips that have to go stay where they are.
    [[nodiscard]] static std::optional<ClipChange> added(QList<ClipItem> clips, const QString& text,
                                                         Date now);

    /// An image was copied and its file written. Equal images are not looked for.
    [[nodiscard]] static ClipChange imageAdded(QList<ClipItem> clips, const QString& imageFileName,
                                               Date now);

    /// Pins or unpins a clip, then sorts: pinned ones first and, among the pinned as among the
    /// others, the older first.
    [[nodiscard]] static std::optional<ClipChange> pinToggled(QList<ClipItem> clips,
                                                              const QUuid& id);

    [[nodiscard]] static std::optional<ClipChange> deleted(QList<ClipItem> clips, const QUuid& id);

    /// The clip itself, or its text copied again.
    [[nodiscard]] static bool has(const QList<ClipItem>& clips, const ClipItem& clip);

    /// A deleted clip comes back, to its old place in a list whose ids were once `order`. Not if
    /// its text was copied again meanwhile.
    [[nodiscard]] static std::optional<ClipChange>
    restored(QList<ClipItem> clips, const ClipItem& clip, const QList<QUuid>& order);

    /// Only the pinned clips stay.
    [[nodiscard]] static ClipChange cleared(QList<ClipItem> clips);
};

} // namespace ravelo
