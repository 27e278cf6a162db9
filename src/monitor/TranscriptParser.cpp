#include "monitor/TranscriptParser.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUtf8StringView>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// A decimal integer, with a sign at most.
std::optional<qint64> parseInteger(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    const char* begin = bytes.begin();
    if (bytes.startsWith('+') && !bytes.startsWith("+-")) {
        ++begin;
    }
    qint64 number = 0;
    const auto [rest, error] = std::from_chars(begin, bytes.end(), number);
    return error == std::errc() && rest == bytes.end() ? std::optional(number) : std::nullopt;
}

/// A JSON number without its fraction; nothing if it is not a number or does not fit.
std::optional<qint64> toInteger(const QJsonValue& value) {
    constexpr double beyond = 0x1p63;
    if (!value.isDouble()) {
        return std::nullopt;
    }
    const double number = std::trunc(value.toDouble());
    if (number < -beyond || number >= beyond) {
        // The largest integers round up to this as doubles.
        const qint64 exact = value.toInteger(0);
        return exact == 0 ? std::nullopt : std::optional(exact);
    }
    return value.toInteger(static_cast<qint64>(number));
}

/// Nothing if the sum overflows.
std::optional<qint64> tokenTotal(const QJsonObject& usage) {
    qint64 total = 0;
    for (const auto& key :
         {"input_tokens"_L1, "cache_read_input_tokens"_L1, "cache_creation_input_tokens"_L1}) {
        if (__builtin_add_overflow(total, toInteger(usage.value(key)).value_or(0), &total)) {
            return std::nullopt;
        }
    }
    return total;
}

std::optional<TurnUsage> usageOf(QByteArrayView line) {
    if (!line.contains("\"usage\"")) {
        return std::nullopt; // Cheaper than parsing.
    }
    const QJsonObject entry =
        QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), line.size())).object();
    const QJsonObject message = entry.value("message"_L1).toObject();
    const QJsonValue usage = message.value("usage"_L1);
    const QString model = message.value("model"_L1).toString();
    if (!usage.isObject() || entry.value("isSidechain"_L1).toBool() || model.startsWith(u'<')) {
        return std::nullopt;
    }
    const std::optional<qint64> tokens = tokenTotal(usage.toObject());
    return tokens && *tokens >= 1
               ? std::optional(TurnUsage{model, *tokens, entry.value("cwd"_L1).toString()})
               : std::nullopt;
}

/// "claude-opus-4-6" for "us.anthropic.claude-opus-4-6-v1:0", also at the end of a resource name.
QString withoutBedrock(const QString& name) {
    static const QRegularExpression form(
        u"\\A(?:.*[./])?anthropic\\.(claude-.+?)(?:-v[0-9]+(?::[0-9a-z]+)*)?\\z"_s);
    const QRegularExpressionMatch match = form.match(name);
    return match.hasMatch() ? match.captured(1) : name;
}

/// A path as the name of a transcript's folder.
QString stored(const QString& path) {
    static const QRegularExpression others(u"[^A-Za-z0-9]"_s);
    return QString(path).replace(others, u"-"_s);
}

bool isDateStamp(const QString& piece) {
    return piece.size() >= 8 && parseInteger(piece);
}

} // namespace

std::optional<TurnUsage> lastUsage(QByteArrayView window) {
    if (!QUtf8StringView(window.data(), window.size()).isValidUtf8()) {
        return std::nullopt;
    }
    for (QByteArrayView rest = window; !rest.empty();) {
        const qsizetype end = rest.lastIndexOf('\n');
        if (std::optional<TurnUsage> usage = usageOf(rest.sliced(end + 1))) {
            return usage;
        }
        rest = rest.first(std::max<qsizetype>(end, 0));
    }
    return std::nullopt;
}

QByteArrayView afterFirstLine(QByteArrayView window) {
    const qsizetype end = window.indexOf('\n');
    return end < 0 ? QByteArrayView() : window.sliced(end + 1);
}

std::optional<qint64> compactWindow(QByteArrayView settings) {
    const QJsonValue value =
        QJsonDocument::fromJson(QByteArray::fromRawData(settings.data(), settings.size()))
            .object()
            .value("env"_L1)
            .toObject()
            .value("CLAUDE_CODE_AUTO_COMPACT_WINDOW"_L1);
    return value.isString() ? parseInteger(value.toString()) : toInteger(value);
}

QString prettyModel(const QString& raw) {
    QString plain = raw;
    QStringList pieces = withoutBedrock(plain.remove(u"[1m]"_s)).split(u'-', Qt::SkipEmptyParts);
    if (!pieces.isEmpty() && pieces.first() == "claude"_L1) {
        pieces.removeFirst();
    }
    pieces.removeIf(isDateStamp);
    if (pieces.isEmpty()) {
        return raw;
    }
    QString name = pieces.takeFirst();
    const qsizetype first = name.at(0).isHighSurrogate() ? 2 : 1;
    name.replace(0, first, name.first(std::min(first, name.size())).toUpper());
    return pieces.isEmpty() ? name : name + u' ' + pieces.join(u'.');
}

QString projectName(const QString& folder, const QString& stored, const QString& home) {
    for (QString path = folder; path.contains(u'/'); path = path.section(u'/', 0, -2)) {
        if (ravelo::stored(path) == stored) {
            return oneLine(path.section(u'/', -1));
        }
    }
    if (!folder.isEmpty()) {
        return oneLine(folder.section(u'/', -1, -1, QString::SectionSkipEmpty));
    }
    const QString parent = ravelo::stored(home + u'/');
    return oneLine(stored.startsWith(parent) ? stored.mid(parent.size()) : stored);
}

QString oneLine(const QString& text) {
    constexpr qsizetype most = 60;
    QString line = text.left(most);
    const auto isControl = [](QChar c) {
        return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format;
    };
    std::ranges::replace_if(line, isControl, u' ');
    return line.simplified();
}

} // namespace ravelo
