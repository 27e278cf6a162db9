#include "ui/clips/ClipQuery.h"

#include "clipboard/CaptureRules.h"
#include "ui/preview/ClipColor.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

struct NamedType {
    QLatin1StringView name;
    ClipQuery::Type type;
};

constexpr std::array<NamedType, 5> types = {{{"text"_L1, ClipQuery::Type::text},
                                             {"link"_L1, ClipQuery::Type::link},
                                             {"image"_L1, ClipQuery::Type::image},
                                             {"files"_L1, ClipQuery::Type::files},
                                             {"color"_L1, ClipQuery::Type::color}}};

constexpr QLatin1StringView expressionMark("re:");

std::optional<ClipQuery::Type> typeOf(QStringView name) {
    const auto* const found =
        std::ranges::find_if(types, [name](const NamedType& type) { return type.name == name; });
    return found == types.end() ? std::nullopt : std::optional(found->type);
}

/// The beginning of a day ("today", "2026-03-31"), or some days or hours before `now` ("7d",
/// "12h").
std::optional<Date> momentOf(const QString& written, Date now) {
    if (written == u"today"_s) {
        return toDate(toDateTime(now).toLocalTime().date().startOfDay());
    }
    static const QRegularExpression ago(u"^([0-9]{1,4})([dh])$"_s);
    if (const auto match = ago.match(written); match.hasMatch()) {
        const int hours = match.captured(1).toInt() * (match.captured(2) == u"d"_s ? 24 : 1);
        return Date{now.sinceReference - hours * 3600.0};
    }
    const QDate day = QDate::fromString(written, Qt::ISODate);
    return day.isValid() ? std::optional(toDate(day.startOfDay())) : std::nullopt;
}

/// Adds the filter to `query`; false if `word` is none.
bool add(ClipQuery& query, const QString& word, Date now) {
    const qsizetype colon = word.indexOf(u':');
    const QString key = word.left(colon).toLower();
    const QString value = word.mid(colon + 1).toLower();
    if (colon < 0) {
        return false;
    }
    if (key == u"type"_s) {
        const auto type = typeOf(value);
        query.type = type ? type : query.type;
        return type.has_value();
    }
    if (key == u"app"_s) {
        query.program = value.isEmpty() ? query.program : value;
        return !value.isEmpty();
    }
    if (key == u"before"_s || key == u"after"_s) {
        const auto moment = momentOf(value, now);
        auto& limit = key == u"before"_s ? query.before : query.after;
        limit = moment ? moment : limit;
        return moment.has_value();
    }
    return false;
}

} // namespace

ClipQuery ClipQuery::parse(const QString& written, Date now) {
    ClipQuery query;
    qsizetype start = 0;
    for (;;) {
        const qsizetype space = written.indexOf(u' ', start);
        const qsizetype end = space < 0 ? written.size() : space;
        if (!add(query, written.mid(start, end - start), now)) {
            break;
        }
        start = std::min(end + 1, written.size());
    }
    query.text = written.mid(start);
    if (query.text.startsWith(expressionMark) && !query.text.startsWith(u"re: ")) {
        const QString expression = query.text.mid(expressionMark.size());
        query.text.clear();
        if (!expression.isEmpty()) {
            const auto pattern = ignorePattern(expression);
            query.expression = pattern.value_or(QRegularExpression());
            query.mistake = pattern ? QString() : pattern.error().message;
        }
    }
    return query;
}

bool ClipQuery::isFilter(const QString& word) {
    ClipQuery query;
    return add(query, word, {});
}

bool ClipQuery::accepts(const ClipItem& clip, const ClipDetails& details) const {
    if ((after && clip.date < *after) || (before && clip.date >= *before) ||
        !details.program.contains(program, Qt::CaseInsensitive)) {
        return false;
    }
    if (!type) {
        return true;
    }
    switch (*type) {
    case Type::link:
        return clip.kind == ClipKind::url;
    case Type::image:
        return clip.kind == ClipKind::image;
    case Type::color:
        return clip.kind == ClipKind::text && colorOf(clip.text).isValid();
    case Type::files:
        return details.files > 0;
    case Type::text:
        return clip.kind == ClipKind::text;
    }
    return true;
}

QString ClipQuery::nothingFound() const {
    if (!mistake.isEmpty()) {
        return mistake;
    }
    if (expression) {
        return tr("Nothing matches");
    }
    if (!program.isEmpty() && text.isEmpty()) {
        return tr("Nothing from \u201c%1\u201d").arg(program);
    }
    if (!type) {
        return !text.isEmpty() ? tr("Nothing has \u201c%1\u201d").arg(text)
               : hasFilter()   ? tr("Nothing from this time")
                               : QString();
    }

    struct Words {
        QString has;
        QString none;
    };

    const auto words = [this]() -> Words {
        switch (*type) {
        case Type::link:
            return {tr("No link has \u201c%1\u201d."), tr("No links")};
        case Type::image:
            return {tr("No image has \u201c%1\u201d."), tr("No images")};
        case Type::files:
            return {tr("No files have \u201c%1\u201d."), tr("No files")};
        case Type::color:
            return {tr("No color has \u201c%1\u201d."), tr("No colors")};
        case Type::text:
            break;
        }
        return {tr("No text has \u201c%1\u201d."), tr("No texts")};
    }();
    return text.isEmpty() ? words.none : words.has.arg(text);
}

} // namespace ravelo
