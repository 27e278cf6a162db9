#include "platform/gnome/Protocol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSize>

#include <cmath>
#include <limits>

namespace ravelo::gnome {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxScreens = 64;
constexpr qsizetype maxTypes = 512;
constexpr double maxCoordinate = 1e6;

std::optional<quint32> wholeNumber(const QJsonValue& value) {
    const double number = value.toDouble(-1);
    if (number < 0 || number > std::numeric_limits<quint32>::max() ||
        number != std::floor(number)) {
        return std::nullopt;
    }
    return static_cast<quint32>(number);
}

std::optional<QRectF> rectangle(const QJsonValue& value) {
    const QJsonArray numbers = value.toArray();
    if (numbers.size() != 4) {
        return std::nullopt;
    }
    for (const auto number : numbers) {
        if (!(std::abs(number.toDouble(NAN)) <= maxCoordinate)) {
            return std::nullopt;
        }
    }
    const QRectF result(numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(),
                        numbers[3].toDouble());
    return result.width() >= 0 && result.height() >= 0 ? std::optional(result) : std::nullopt;
}

std::optional<QList<QByteArray>> texts(const QJsonValue& value) {
    const QJsonArray names = value.toArray();
    if (!value.isArray()) {
        return std::nullopt;
    }
    if (names.size() > maxTypes) {
        return QList<QByteArray>(); // A mark of secrecy could be among those that are left out.
    }
    QList<QByteArray> result;
    for (const auto name : names) {
        if (!name.isString()) {
            return std::nullopt;
        }
        result.append(name.toString().toUtf8());
    }
    return result;
}

std::optional<Report> parseHello(const QJsonObject& message) {
    const auto version = wholeNumber(message[u"version"]);
    return version && *version <= 1'000'000
               ? std::optional<Report>(Hello{static_cast<int>(*version)})
               : std::nullopt;
}

std::optional<Report> parseScreens(const QJsonObject& message) {
    const QJsonArray list = message[u"screens"].toArray();
    const auto primary = wholeNumber(message[u"primary"]);
    if (list.size() > maxScreens || !primary) {
        return std::nullopt;
    }
    ScreensReport report{{}, *primary};
    for (const auto one : list) {
        const auto frame = rectangle(one[u"frame"]);
        const auto free = rectangle(one[u"free"]);
        if (!frame || !free) {
            return std::nullopt;
        }
        report.screens.push_back(
            {QString::number(report.screens.size()), *frame, *free & *frame, {}, {}});
    }
    return report;
}

std::optional<Report> parseLook(const QJsonObject& message) {
    const QJsonValue animations = message[u"animations"];
    const QJsonValue icons = message[u"icons"];
    return animations.isBool() && icons.isString()
               ? std::optional<Report>(Look{animations.toBool(), icons.toString()})
               : std::nullopt;
}

std::optional<Report> parseEdge(const QJsonObject& message) {
    if (!message.contains(u"screen")) {
        return Edge{};
    }
    const auto screen = wholeNumber(message[u"screen"]);
    return screen ? std::optional<Report>(Edge{*screen}) : std::nullopt;
}

std::optional<Report> parsePressed(const QJsonObject& message) {
    const QJsonValue own = message[u"own"];
    return own.isBool() ? std::optional<Report>(Pressed{own.toBool()}) : std::nullopt;
}

std::optional<Report> parseCopied(const QJsonObject& message) {
    const auto serial = wholeNumber(message[u"serial"]);
    auto names = texts(message[u"types"]);
    if (!serial || !names) {
        return std::nullopt;
    }
    return Copied{*serial, std::move(*names), message[u"kept"].toBool(),
                  message[u"offered"].toBool(), message[u"initial"].toBool()};
}

std::optional<Report> parseDrag(const QJsonObject& message) {
    const auto serial = wholeNumber(message[u"serial"]);
    auto names = texts(message[u"types"]);
    return serial && names ? std::optional<Report>(DragBegan{*serial, std::move(*names)})
                           : std::nullopt;
}

std::optional<Report> parseGiven(const QJsonObject& message, Given::How how) {
    const QString of = message[u"of"].toString();
    const auto serial = wholeNumber(message[u"serial"]);
    const QJsonValue type = message[u"type"];
    if ((of != "clip"_L1 && of != "drag"_L1) || !serial || !type.isString()) {
        return std::nullopt;
    }
    return Given{how, of == "clip"_L1 ? Selection::clip : Selection::drag, *serial,
                 type.toString().toUtf8()};
}

std::optional<Report> parseKeyboard(const QJsonObject& message) {
    const auto serial = wholeNumber(message[u"serial"]);
    const QJsonValue focused = message[u"focused"];
    const QJsonValue modifiers = message[u"modifiers"];
    const QJsonValue layout = message[u"layout"];
    const auto names = texts(message[u"names"]);
    const auto window = wholeNumber(message[u"window"]);
    if (!serial || !focused.isBool() || !modifiers.isBool() || !layout.isString() || !names ||
        window.has_value() != message.contains(u"window")) {
        return std::nullopt;
    }
    KeyboardReport report{*serial,          window, {}, focused.toBool(), modifiers.toBool(),
                          layout.toString()};
    for (const QByteArray& name : *names) {
        report.names.append(QString::fromUtf8(name));
    }
    return report;
}

QByteArray line(const QJsonObject& message) {
    return QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

std::optional<Report> parseReport(QByteArrayView line) {
    const auto document = QJsonDocument::fromJson(line.toByteArray());
    const QJsonObject message = document.object();
    const QString is = message[u"is"].toString();
    using Parse = std::optional<Report> (*)(const QJsonObject&);
    static constexpr std::pair<QLatin1StringView, Parse> kinds[] = {
        {"hello"_L1, parseHello},
        {"screens"_L1, parseScreens},
        {"look"_L1, parseLook},
        {"edge"_L1, parseEdge},
        {"press"_L1, parsePressed},
        {"clip"_L1, parseCopied},
        {"drag"_L1, parseDrag},
        {"dragEnd"_L1,
         [](const QJsonObject&) {
             return std::optional<Report>(DragEnded{});
         }},
        {"data"_L1,
         [](const QJsonObject& given) {
             return parseGiven(given, Given::How::descriptor);
         }},
        {"pour"_L1,
         [](const QJsonObject& given) {
             return parseGiven(given, Given::How::poured);
         }},
        {"none"_L1,
         [](const QJsonObject& given) {
             return parseGiven(given, Given::How::refused);
         }},
        {"keyboard"_L1, parseKeyboard},
        {"locked"_L1,
         [](const QJsonObject&) {
             return std::optional<Report>(Locked{});
         }},
    };
    for (const auto& [name, parse] : kinds) {
        if (is == name) {
            return parse(message);
        }
    }
    return std::nullopt;
}

QByteArray hello(const QString& title, QSize strip) {
    return line({{u"is"_s, u"hello"_s},
                 {u"version"_s, protocolVersion},
                 {u"title"_s, title},
                 {u"stripWidth"_s, strip.width()},
                 {u"stripHeight"_s, strip.height()}});
}

QByteArray want(Selection of, quint32 serial, const QByteArray& type, qsizetype cap) {
    return line({{u"is"_s, u"want"_s},
                 {u"of"_s, of == Selection::clip ? u"clip"_s : u"drag"_s},
                 {u"serial"_s, qint64(serial)},
                 {u"type"_s, QString::fromUtf8(type)},
                 {u"cap"_s, cap}});
}

QByteArray place(std::size_t screen) {
    return line({{u"is"_s, u"place"_s}, {u"screen"_s, qint64(screen)}});
}

QByteArray focus(Focus focus) {
    return line({{u"is"_s, u"focus"_s}, {u"on"_s, focus == Focus::take}});
}

QByteArray askAboutKeyboard(quint32 serial) {
    return line({{u"is"_s, u"keyboard"_s}, {u"serial"_s, qint64(serial)}});
}

QByteArray offer(const QString& text, const QByteArray& unless) {
    return line(
        {{u"is"_s, u"offer"_s}, {u"text"_s, text}, {u"unless"_s, QString::fromUtf8(unless)}});
}

} // namespace ravelo::gnome
