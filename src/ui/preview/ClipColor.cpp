#include "ui/preview/ClipColor.h"

#include <QRegularExpression>

#include <optional>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longest = 64; ///< Of a written color; other texts need no closer look.

QColor fromHex(QString digits) {
    if (digits.size() < 6) { // One digit stands for two.
        QString doubled;
        for (const QChar digit : digits) {
            doubled += digit;
            doubled += digit;
        }
        digits = doubled;
    }
    const uint value = digits.toUInt(nullptr, 16);
    return digits.size() == 8 ? QColor::fromRgba(value >> 8 | value << 24) : QColor::fromRgb(value);
}

/// A number, or a percentage of `whole`.
std::optional<double> amount(QString written, double whole) {
    const bool percent = written.endsWith(u'%');
    if (percent) {
        written.chop(1);
    }
    bool ok = false;
    const double value = written.toDouble(&ok) * (percent ? whole / 100 : 1);
    return ok && value >= 0 && value <= whole ? std::optional(value) : std::nullopt;
}

QColor fromFunction(const QString& name, const QStringList& parts) {
    const bool rgb = name.startsWith(u"rgb"_s);
    if (!rgb && (!parts[1].endsWith(u'%') || !parts[2].endsWith(u'%'))) {
        return {};
    }
    const auto first = amount(QString(parts[0]).remove(u"deg"_s), rgb ? 255 : 360);
    const auto second = amount(parts[1], rgb ? 255 : 1);
    const auto third = amount(parts[2], rgb ? 255 : 1);
    const auto alpha = parts.size() > 3 ? amount(parts[3], 1) : std::optional(1.0);
    if (!first || !second || !third || !alpha) {
        return {};
    }
    return rgb ? QColor::fromRgbF(float(*first / 255), float(*second / 255), float(*third / 255),
                                  float(*alpha))
               : QColor::fromHslF(float(*first / 360), float(*second), float(*third),
                                  float(*alpha));
}

} // namespace

QColor colorOf(const QString& text) {
    if (text.size() > longest) {
        return {};
    }
    static const QRegularExpression hex(u"^#([0-9a-f]{3}|[0-9a-f]{4}|[0-9a-f]{6}|[0-9a-f]{8})$"_s,
                                        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression function(u"^(rgb|rgba|hsl|hsla)\\(([^()]*)\\)$"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression between(u"[\\s,/]+"_s);
    const QString written = text.trimmed();
    if (const auto match = hex.match(written); match.hasMatch()) {
        return fromHex(match.captured(1));
    }
    if (const auto match = function.match(written); match.hasMatch()) {
        const QStringList parts = match.captured(2).split(between, Qt::SkipEmptyParts);
        if (parts.size() == 3 || parts.size() == 4) {
            return fromFunction(match.captured(1).toLower(), parts);
        }
    }
    return {};
}

} // namespace ravelo
