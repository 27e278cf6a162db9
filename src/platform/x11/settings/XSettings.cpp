#include "platform/x11/settings/XSettings.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <utility>

namespace ravelo::x11 {

namespace {

enum Type : quint8 { integer = 0, string = 1, color = 2 };

qint64 padded(qint64 length) {
    return (length + 3) / 4 * 4;
}

struct Setting {
    quint8 type = integer;
    QByteArray name;
};

/// Reads up to the start of its value.
Setting readSetting(QDataStream& in) {
    Setting setting;
    quint16 length = 0;
    in >> setting.type;
    in.skipRawData(1);
    in >> length;
    setting.name.resize(length);
    in.readRawData(setting.name.data(), length);
    in.skipRawData(static_cast<int>(padded(length) - length) + 4); // The serial of its last change.
    return setting;
}

void skipValue(QDataStream& in, quint8 type) {
    quint32 length = type == color ? 8 : 4;
    if (type == string) {
        in >> length;
    }
    const qint64 end = in.device()->pos() + padded(length);
    if (type > color || end > in.device()->size()) {
        in.setStatus(QDataStream::ReadCorruptData);
        return;
    }
    in.device()->seek(end);
}

/// Calls `read` at the value of that name and type.
template <typename Read>
auto find(QByteArrayView property, QByteArrayView name, Type type, Read read)
    -> std::optional<decltype(read(std::declval<QDataStream&>()))> {
    QDataStream in(property.toByteArray());
    quint8 bigEndian = 0;
    quint32 settings = 0;
    in >> bigEndian;
    in.setByteOrder(bigEndian != 0 ? QDataStream::BigEndian : QDataStream::LittleEndian);
    in.skipRawData(7); // Padding and the serial of the whole.
    in >> settings;
    for (; settings > 0 && in.status() == QDataStream::Ok; --settings) {
        const Setting setting = readSetting(in);
        if (setting.name == name && setting.type == type) {
            auto value = read(in);
            return in.status() == QDataStream::Ok ? std::optional(value) : std::nullopt;
        }
        skipValue(in, setting.type);
    }
    return std::nullopt;
}

} // namespace

std::optional<int32_t> xsettingsInteger(QByteArrayView property, QByteArrayView name) {
    return find(property, name, integer, [](QDataStream& in) {
        qint32 value = 0;
        in >> value;
        return value;
    });
}

std::optional<QByteArray> xsettingsString(QByteArrayView property, QByteArrayView name) {
    return find(property, name, string, [](QDataStream& in) {
        quint32 length = 0;
        in >> length;
        const QByteArray value =
            in.device()->read(std::min<qint64>(length, in.device()->bytesAvailable()));
        if (value.size() != length) {
            in.setStatus(QDataStream::ReadPastEnd);
        }
        return value;
    });
}

} // namespace ravelo::x11
