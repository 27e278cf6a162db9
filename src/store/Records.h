#pragma once

#include "base/Date.h"

#include <QLatin1StringView>
#include <QList>
#include <QPointF>
#include <QString>
#include <QUuid>

namespace ravelo {

/// The kind of a clip. Stored as "text", "url" or "image".
enum class ClipKind { text, url, image };

/// The form of a text that the user's patterns could not be tried on completely.
inline constexpr QLatin1StringView uncheckedText("unchecked");

/// One entry of the clipboard history.
struct ClipItem {
    QUuid id;
    QString text; ///< As copied; "Image" for an image.
    ClipKind kind = ClipKind::text;
    Date date; ///< Of capture.
    bool pinned = false;
    QString imageFileName; ///< Name of a PNG in the clips folder; empty if there is none.
    /// Id of its form if it is a secret, which is only kept in memory; never stored.
    QString secret{};

    friend bool operator==(const ClipItem&, const ClipItem&) = default;
};

/// A text that is kept to be copied.
struct Snippet {
    QUuid id;
    QString title;
    QString body;
    QString icon;          ///< Name of a symbol.
    QString imageFileName; ///< Name of a PNG in the clips folder; empty if there is none.

    friend bool operator==(const Snippet&, const Snippet&) = default;
};

/// One pen stroke of the sketch; points in drawing order.
struct Stroke {
    QUuid id;
    QList<QPointF> points;

    friend bool operator==(const Stroke&, const Stroke&) = default;
};

/// Everything the store file holds.
struct StoreData {
    QList<ClipItem> clips; ///< Newest first, apart from sorting by pins.
    QList<Snippet> snippets;
    QString note;
    QString note2;
    QList<Stroke> drawing;
    QList<QStringList> shelfStacks; ///< Absolute paths; one inner list per stack, oldest first.

    friend bool operator==(const StoreData&, const StoreData&) = default;
};

} // namespace ravelo
