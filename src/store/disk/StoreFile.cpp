#include "store/disk/StoreFile.h"

#include "base/Uuid.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cmath>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<std::pair<ClipKind, QLatin1StringView>, 3> kindNames = {{
    {ClipKind::text, "text"_L1},
    {ClipKind::url, "url"_L1},
    {ClipKind::image, "image"_L1},
}};

// Writing: one overload of json() per record.

template <typename T>
QJsonArray jsonArray(const QList<T>& list);

QJsonValue json(const QStringList& texts) {
    return QJsonArray::fromStringList(texts);
}

QJsonValue json(ClipKind kind) {
    for (const auto& [value, name] : kindNames) {
        if (value == kind) {
            return name;
        }
    }
    Q_UNREACHABLE();
}

QJsonValue json(const QPointF& point) {
    return QJsonObject{{u"x"_s, point.x()}, {u"y"_s, point.y()}};
}

QJsonObject withImage(QJsonObject object, const QString& imageFileName) {
    if (!imageFileName.isEmpty()) {
        object.insert(u"imageFileName"_s, imageFileName);
    }
    return object;
}

QJsonValue json(const ClipItem& clip) {
    return withImage({{u"id"_s, uuidText(clip.id)},
                      {u"text"_s, clip.text},
                      {u"kind"_s, json(clip.kind)},
                      {u"date"_s, clip.date.sinceReference},
                      {u"pinned"_s, clip.pinned}},
                     clip.imageFileName);
}

QJsonValue json(const Snippet& snippet) {
    return withImage({{u"id"_s, uuidText(snippet.id)},
                      {u"title"_s, snippet.title},
                      {u"body"_s, snippet.body},
                      {u"icon"_s, snippet.icon}},
                     snippet.imageFileName);
}

QJsonValue json(const Stroke& stroke) {
    QList<QPointF> points = stroke.points;
    // JSON would write null, which makes the file unreadable.
    points.removeIf([](QPointF p) { return !std::isfinite(p.x()) || !std::isfinite(p.y()); });
    return QJsonObject{{u"id"_s, uuidText(stroke.id)}, {u"points"_s, jsonArray(points)}};
}

template <typename T>
QJsonArray jsonArray(const QList<T>& list) {
    QJsonArray array;
    for (const auto& element : list) {
        array.append(json(element));
    }
    return array;
}

// Reading: one overload of read() per type; false if the value is not of that type.

template <typename T>
bool read(const QJsonValue& value, QList<T>& list);

bool read(const QJsonValue& value, QString& text) {
    text = value.toString();
    return value.isString();
}

bool read(const QJsonValue& value, bool& flag) {
    flag = value.toBool();
    return value.isBool();
}

bool read(const QJsonValue& value, double& number) {
    number = value.toDouble();
    return value.isDouble();
}

bool read(const QJsonValue& value, Date& date) {
    return read(value, date.sinceReference);
}

bool read(const QJsonValue& value, QUuid& id) {
    const std::optional<QUuid> parsed = parseUuid(value.toString());
    id = parsed.value_or(QUuid());
    return parsed.has_value();
}

bool read(const QJsonValue& value, ClipKind& kind) {
    for (const auto& [known, name] : kindNames) {
        if (value.toString() == name) {
            kind = known;
            return true;
        }
    }
    return false;
}

bool readOptional(const QJsonValue& value, QString& text) {
    return value.isUndefined() || value.isNull() || read(value, text);
}

bool read(const QJsonValue& value, QPointF& point) {
    return read(value[u"x"], point.rx()) && read(value[u"y"], point.ry());
}

bool read(const QJsonValue& value, ClipItem& clip) {
    return read(value[u"id"], clip.id) && read(value[u"text"], clip.text) &&
           read(value[u"kind"], clip.kind) && read(value[u"date"], clip.date) &&
           read(value[u"pinned"], clip.pinned) &&
           readOptional(value[u"imageFileName"], clip.imageFileName);
}

bool read(const QJsonValue& value, Snippet& snippet) {
    return read(value[u"id"], snippet.id) && read(value[u"title"], snippet.title) &&
           read(value[u"body"], snippet.body) && read(value[u"icon"], snippet.icon) &&
           readOptional(value[u"imageFileName"], snippet.imageFileName);
}

bool read(const QJsonValue& value, Stroke& stroke) {
    return read(value[u"id"], stroke.id) && read(value[u"points"], stroke.points);
}

template <typename T>
bool read(const QJsonValue& value, QList<T>& list) {
    const QJsonArray array = value.toArray();
    list.reserve(array.size());
    for (const auto element : array) {
        if (!read(element, list.emplaceBack())) {
            return false;
        }
    }
    return value.isArray();
}

} // namespace

QByteArray encodeStore(const StoreData& data) {
    QList<ClipItem> clips = data.clips;
    clips.removeIf([](const ClipItem& clip) { return !clip.secret.isEmpty(); });
    const QJsonObject object = {{u"clips"_s, jsonArray(clips)},
                                {u"snippets"_s, jsonArray(data.snippets)},
                                {u"note"_s, data.note},
                                {u"note2"_s, data.note2},
                                {u"drawing"_s, jsonArray(data.drawing)},
                                {u"shelfStacks"_s, jsonArray(data.shelfStacks)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

bool isOfNewerStore(const QByteArray& bytes) {
    return bytes.contains("\"version\":") &&
           QJsonDocument::fromJson(bytes).object().value(u"version").toDouble(1) > 1;
}

std::optional<StoreData> decodeStore(const QByteArray& bytes) {
    const QJsonValue value = QJsonDocument::fromJson(bytes).object();
    StoreData data;
    const bool whole = read(value[u"clips"], data.clips) &&
                       read(value[u"snippets"], data.snippets) && read(value[u"note"], data.note) &&
                       read(value[u"note2"], data.note2) && read(value[u"drawing"], data.drawing) &&
                       read(value[u"shelfStacks"], data.shelfStacks);
    return whole ? std::optional(std::move(data)) : std::nullopt;
}

} // namespace ravelo
