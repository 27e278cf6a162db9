#pragma once

#include "store/Records.h"
#include "store/images/ImageFiles.h"

#include <functional>
#include <optional>

namespace ravelo {

/// The outcome of an operation on the history.
struct ClipChange {
    QList<ClipItem> clips;
    QStringList orphanedImages; ///< Names of image files to delete.
};

/// The rules that the user can choose.
struct HistoryRules {
    /// Sort order after a pin, among the pinned as among the others.
    enum class Order { olderFirst, newerFirst };

    Order order = Order::olderFirst;
    int limit = 60;     ///< Of unpinned clips; pinned ones are always kept.
    double keepFor = 0; ///< Seconds since the copy; 0 for ever.
    /// Of all texts together, in UTF-8, or of all images; 0 for no limit. What is kept beside a
    /// clip counts, too.
    qint64 textBytes = 0;
    qint64 imageBytes = 0;

    friend bool operator==(const HistoryRules&, const HistoryRules&) = default;
};

/// The rules of the clipboard history, as functions on its list. They return nothing if the list
/// does not change.
struct ClipHistory {
    /// Adds a copied text, untrimmed, in place of unpinned clips of the same text. Changes nothing
    /// if it is only white space or already the newest unpinned text. Leaves the image files of
    /// clips that are pushed out. `secret` is the clip's; copied again, a secret begins anew.
    [[nodiscard]] static std::optional<ClipChange> added(QList<ClipItem> clips, const QString& text,
                                                         Date now, const HistoryRules& rules = {},
                                                         const QString& secret = {});

    /// Adds an image whose file is written. Equal images are not detected.
    [[nodiscard]] static ClipChange imageAdded(QList<ClipItem> clips, const QString& imageFileName,
                                               Date now, const HistoryRules& rules = {});

    /// Pins or unpins a clip, then sorts: pinned ones first and each group by date.
    [[nodiscard]] static std::optional<ClipChange>
    pinToggled(QList<ClipItem> clips, const QUuid& id,
               HistoryRules::Order order = HistoryRules::Order::olderFirst);

    /// Makes those secrets ordinary clips for which `isMeant` returns true.
    [[nodiscard]] static std::optional<ClipChange>
    secretsKept(QList<ClipItem> clips, const std::function<bool(const ClipItem&)>& isMeant);

    /// Sorts each group newest first. A new copy stays above the pinned ones.
    [[nodiscard]] static std::optional<ClipChange> newerFirst(const QList<ClipItem>& clips);

    [[nodiscard]] static std::optional<ClipChange> deleted(QList<ClipItem> clips,
                                                           const QSet<QUuid>& ids);

    /// Puts a deleted clip back to its old place in a list whose ids were once `order`, unless its
    /// text was copied again meanwhile. The limit applies only with the next copy.
    [[nodiscard]] static std::optional<ClipChange>
    restored(QList<ClipItem> clips, const ClipItem& clip, const QList<QUuid>& order);

    /// Removes unpinned clips that are too old, then the oldest beyond the limits of size. A pinned
    /// clip counts, but stays. `sizes` are those of the files in the clips folder.
    [[nodiscard]] static std::optional<ClipChange>
    trimmed(QList<ClipItem> clips, Date now, const HistoryRules& rules, const FileSizes& sizes);

    /// The oldest unpinned clips whose forms have to go until all forms have at most `limit` bytes.
    [[nodiscard]] static QSet<QUuid> surplusForms(const QList<ClipItem>& clips, qint64 limit,
                                                  const FileSizes& sizes);

    /// Of all texts, in UTF-8.
    [[nodiscard]] static qint64 textBytes(const QList<ClipItem>& clips);

    /// Adds clips of another list as if they were copied now, the oldest first, with their dates
    /// and ids. Those that are there already, by id, stay as they are.
    [[nodiscard]] static ClipChange merged(QList<ClipItem> clips, QList<ClipItem> others,
                                           const HistoryRules& rules);

    /// Both lists, each group by date, newest first; of two unpinned clips of one text the newer.
    [[nodiscard]] static QList<ClipItem> joined(QList<ClipItem> clips,
                                                const QList<ClipItem>& others);

    /// Removes the unpinned clips that were copied at `since` or later.
    [[nodiscard]] static ClipChange clearedSince(QList<ClipItem> clips, Date since);

    /// Only the pinned clips stay.
    [[nodiscard]] static ClipChange cleared(QList<ClipItem> clips);
};

} // namespace ravelo
