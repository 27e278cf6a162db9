#pragma once

#include "base/Date.h"

#include <QList>
#include <QPointF>
#include <QString>
#include <QUuid>

namespace ravelo {

/// What a clipboard entry is. Stored as "text", "url", "image".
enum class ClipKind { text, url, image };

/// One entry of the clipboard history.
struct ClipItem {
    QUuid id;
    QString text; ///< As copied; "Image" for an image.
    ClipKind kind = ClipKind::text;
    Date date; ///< The moment of capture.
    bool pinned = false;
    QString imageFileName; ///< Name of a PNG in the clips folder; empty where there is none.

    friend bool operator==(const ClipItem&, const ClipItem&) = default;
};

/// A text kept at hand to be copied.
struct Snippet {
    QUuid id;
    QString title;
    QString body;
    QString icon;          ///< Name of a symbol.
    QString imageFileName; ///< Name of a PNG in the clips folder; empty where there is none.

    friend bool operator==(const Snippet&, const Snippet&) = default;
};

/// One pen stroke of the sketch, its points in drawing order.
struct Stroke {
    QUuid id;
    QList<QPointF> points;

    friend bool operator==(const Stroke&, const Stroke&) = default;
};

/// Everything the store file holds.
struct StoreData {
    QList<ClipItem> clips; ///< Newest first but for what pinning has sorted.
    QList<Snippet> snippets;
    QString note;
    QString note2;
    QList<Stroke> drawing;
    QList<QStringList> shelfStacks; ///< Absolute paths; one inner list a stack, oldest stack first.

    friend bool operator==(const StoreData&, const StoreData&) = default;
};

} // namespace ravelo
