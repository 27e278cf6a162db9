#include "store/history/ClipForms.h"

#include "base/UriList.h"
#include "base/Uuid.h"

#include <QSysInfo>
#include <QUtf8StringView>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView magic("RvForms\x01");
constexpr auto extension = ".forms"_L1;
constexpr qsizetype maxName = 1024; ///< Of a type or a program, in bytes.

constexpr std::array wholeTypes{
    uriListType,
    gnomeFilesType,
    "text/html"_L1,
    "text/rtf"_L1,
    "text/richtext"_L1,
    "text/csv"_L1,
    "text/tab-separated-values"_L1,
    "text/markdown"_L1,
    "application/rtf"_L1,
    "application/msword"_L1,
    "application/xhtml+xml"_L1,
    "application/x-gnumeric"_L1,
    "application/x-libreoffice-tsvc"_L1,
};

constexpr std::array families{
    "application/x-openoffice-"_L1,
    "application/vnd.oasis.opendocument."_L1,
    "application/vnd.openxmlformats-officedocument."_L1,
    "application/vnd.ms-"_L1,
    "application/x-gnumeric"_L1,
};

/// Forms of office programs that are pictures, or that mean something only while they run.
constexpr std::array useless{"-link"_L1, "metafile"_L1, "-emf"_L1, "-wmf"_L1, "bitmap"_L1};

template <typename Number>
void append(QByteArray& bytes, qsizetype number) {
    const auto encoded = qToLittleEndian(static_cast<Number>(number));
    bytes.append(reinterpret_cast<const char*>(&encoded), sizeof encoded);
}

/// Takes parts from the beginning; an end that comes too early makes it bad.
class Reader {
public:
    explicit Reader(QByteArrayView bytes) : left_(bytes) {}

    QByteArrayView take(qsizetype size) {
        isGood_ = isGood_ && size <= left_.size();
        if (!isGood_) {
            return {};
        }
        const QByteArrayView part = left_.first(size);
        left_ = left_.sliced(size);
        return part;
    }

    template <typename Number>
    qsizetype number() {
        const QByteArrayView part = take(sizeof(Number));
        return isGood_ ? qsizetype(qFromLittleEndian<Number>(part.data())) : 0;
    }

    [[nodiscard]] bool isGood() const { return isGood_; }

    [[nodiscard]] bool isAtEnd() const { return isGood_ && left_.isEmpty(); }

private:
    QByteArrayView left_;
    bool isGood_ = true;
};

struct Lengths {
    qsizetype type;
    qsizetype contents;
};

} // namespace

bool isFilesForm(const QString& type) {
    return type == uriListType || type == gnomeFilesType;
}

bool isKeptForm(const QString& type) {
    const auto isPlain = [](QChar c) {
        return c >= u' ' && c <= u'~';
    };
    const auto starts = [&](QLatin1StringView family) {
        return type.startsWith(family);
    };
    const auto has = [&](QLatin1StringView part) {
        return type.section(u';', 0, 0).contains(part);
    };
    return type.size() <= maxName && std::ranges::all_of(type, isPlain) &&
           (std::ranges::find(wholeTypes, type) != wholeTypes.end() ||
            (std::ranges::any_of(families, starts) && std::ranges::none_of(useless, has)));
}

QList<QUrl> filesOf(const ClipForms& kept) {
    for (const PasteboardEntry& form : kept.forms) {
        if (form.type == uriListType) {
            return localFiles(form.bytes, QSysInfo::machineHostName().toUtf8());
        }
    }
    return {};
}

QByteArray encodeForms(const ClipForms& kept) {
    const QByteArray program = kept.program.toUtf8();
    QByteArray bytes = magic.toByteArray();
    append<quint16>(bytes, program.size());
    append<quint16>(bytes, kept.forms.size());
    for (const PasteboardEntry& form : kept.forms) {
        append<quint16>(bytes, form.type.size());
        append<quint32>(bytes, form.bytes.size());
    }
    bytes += program;
    for (const PasteboardEntry& form : kept.forms) {
        bytes += form.type.toLatin1();
    }
    for (const PasteboardEntry& form : kept.forms) {
        bytes += form.bytes;
    }
    return bytes;
}

std::optional<ClipForms> decodeForms(const QByteArray& bytes) {
    Reader reader(bytes);
    if (reader.take(magic.size()) != magic) {
        return std::nullopt;
    }
    const auto programLength = reader.number<quint16>();
    const auto count = reader.number<quint16>();
    if (programLength > maxName || count > maxFormCount) {
        return std::nullopt;
    }
    QList<Lengths> lengths;
    qsizetype all = 0;
    for (qsizetype i = 0; i < count; ++i) {
        const auto type = reader.number<quint16>();
        lengths.append({type, reader.number<quint32>()});
        all += lengths.last().contents;
    }
    const QByteArrayView program = reader.take(programLength);
    if (!reader.isGood() || all > maxFormsSize || !QUtf8StringView(program).isValidUtf8()) {
        return std::nullopt;
    }
    ClipForms kept{QString::fromUtf8(program)};
    QStringList types;
    for (const Lengths& one : lengths) {
        const QString type = QString::fromLatin1(reader.take(one.type));
        if (!isKeptForm(type) || types.contains(type)) {
            return std::nullopt;
        }
        types.append(type);
    }
    for (qsizetype i = 0; i < count; ++i) {
        kept.forms.append({types[i], reader.take(lengths[i].contents).toByteArray()});
    }
    return reader.isAtEnd() ? std::optional(std::move(kept)) : std::nullopt;
}

qint64 formsSize(const ClipForms& kept) {
    qint64 size = kept.program.size();
    for (const PasteboardEntry& form : kept.forms) {
        size += form.bytes.size();
    }
    return size;
}

QString formsFileName(const QUuid& clip) {
    return uuidText(clip) + extension;
}

bool isFormsFileName(const QString& name) {
    return name.endsWith(extension) && parseUuid(name.chopped(extension.size()));
}

} // namespace ravelo
