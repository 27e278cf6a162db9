#include "base/Uuid.h"

#include <QRegularExpression>

namespace ravelo {

QString uuidText(const QUuid& id) {
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> parseUuid(const QString& text) {
    // QUuid alone would also accept braces, non-hexadecimal digits and shorter groups.
    static const QRegularExpression canonical(
        QStringLiteral("\\A[0-9A-Fa-f]{8}(-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}\\z"));
    if (!canonical.match(text).hasMatch()) {
        return std::nullopt;
    }
    return QUuid::fromString(text);
}

} // namespace ravelo
