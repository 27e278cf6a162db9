#pragma once

#include "store/Records.h"

#include <optional>

namespace ravelo {

/// What an operation makes of the clipboard history.
struct ClipChange {
    QList<ClipItem> clips;
    QStringList orphanedImages; ///< Names of image files to be deleted.
};

/// What the user can choose of the rules.
struct HistoryRules {
    /// Which of two clips that are both pinned, or both not, comes first after a pin.
    enum class Order { olderFirst, newerFirst };

    Order order = Order::olderFirst;
    int limit = 60; ///< How many clips are kept; pinned ones neither count nor go.

    friend bool operator==(const HistoryRules&, const HistoryRules&) = default;
};

/// The rules of the clipboard history, on its list. Nothing where the list stays as it is.
struct ClipHistory {
    /// A text was copied. It is kept untrimmed, replaces unpinned clips of the same text, and
    /// counts as no change where it has only white space or is the newest unpinned text already.
    /// Image files of clips that have to go stay where they are.
    [[nodiscard]] static std::optional<ClipChange> added(QList<ClipItem> clips, const QString& text,
                                                         Date now, const HistoryRules& rules = {});

    /// An image was copied and its file written. Equal images are not looked for.
    [[nodiscard]] static ClipChange imageAdded(QList<ClipItem> clips, const QString& imageFileName,
                                               Date now, const HistoryRules& rules = {});

    /// Pins or unpins a clip, then sorts: pinned ones first and, among the pinned as among the
    /// others, by date.
    [[nodiscard]] static std::optional<ClipChange>
    pinToggled(QList<ClipItem> clips, const QUuid& id,
               HistoryRules::Order order = HistoryRules::Order::olderFirst);

    /// The newer first among the pinned as among the others; a new copy stays above the pinned
    /// ones.
    [[nodiscard]] static std::optional<ClipChange> newerFirst(const QList<ClipItem>& clips);

    [[nodiscard]] static std::optional<ClipChange> deleted(QList<ClipItem> clips, const QUuid& id);

    /// A deleted clip comes back, to its old place in a list whose ids were once `order`. Not if
    /// its text was copied again meanwhile. It may be one too many until the next copy.
    [[nodiscard]] static std::optional<ClipChange>
    restored(QList<ClipItem> clips, const ClipItem& clip, const QList<QUuid>& order);

    /// Only the pinned clips stay.
    [[nodiscard]] static ClipChange cleared(QList<ClipItem> clips);
};

} // namespace ravelo
