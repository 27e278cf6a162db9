#pragma once

#include "base/Date.h"
#include "base/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

namespace ravelo {

/// What Claude Code tells its status line about a session.
struct HandedOver {
    QString model;                ///< For display: "Opus 4.6".
    QString session;              ///< Its id.
    QString project;              ///< Name of its folder.
    std::optional<qint64> window; ///< Size of the context window in tokens.
    std::optional<qint64> used;   ///< Tokens in it.
    std::optional<double> cost;   ///< Of the session, in US dollars.
    Date at;

    friend bool operator==(const HandedOver&, const HandedOver&) = default;
};

/// From the status line's input, or from what `handedOverFile` holds; `now` is the time of the
/// former. Nothing if it names neither a model nor a context window.
[[nodiscard]] std::optional<HandedOver> readHandedOver(QByteArrayView json, Date now);

// The file "~/.cache/ravelo/session.json". All block; any thread.

[[nodiscard]] QByteArray handedOverFile(const QByteArray& home);

/// Nothing if the file is missing or malformed.
[[nodiscard]] std::optional<HandedOver> loadHandedOver(const QByteArray& home);

/// Replaces the file atomically; readable by the user only.
[[nodiscard]] Result<void> storeHandedOver(const QByteArray& home, const HandedOver& handed);

} // namespace ravelo
