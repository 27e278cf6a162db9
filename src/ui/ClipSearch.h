#pragma once

#include "store/Records.h"

#include <QHash>
#include <QLocale>

namespace ravelo {

/// Finds the clips that contain a text, ignoring case as the user's language does. Keeps what it
/// has made of their texts while the search goes on, for the next letter typed.
class ClipSearch {
public:
    explicit ClipSearch(const QLocale& locale);

    /// All clips where `search` is empty.
    [[nodiscard]] QList<ClipItem> filtered(const QList<ClipItem>& clips, const QString& search);

private:
    [[nodiscard]] QString folded(const QString& text) const;

    unsigned foldOptions_;
    QHash<QUuid, QString> folded_;
};

} // namespace ravelo
