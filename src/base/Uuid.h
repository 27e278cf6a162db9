#pragma once

#include <QString>
#include <QUuid>

#include <optional>

namespace ravelo {

/// The canonical text of a UUID (RFC 9562): 36 characters, upper-case hexadecimal.
[[nodiscard]] QString uuidText(const QUuid& id);

/// Accepts only the 36-character form, in either case.
[[nodiscard]] std::optional<QUuid> parseUuid(const QString& text);

} // namespace ravelo
