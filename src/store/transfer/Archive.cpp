#include "store/transfer/Archive.h"

#include <QIODevice>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype block = 512;

// Fields of a header: offset and length.
struct Field {
    qsizetype offset;
    qsizetype length;
};

constexpr Field nameField{0, 100};
constexpr Field modeField{100, 8};
constexpr Field sizeField{124, 12};
constexpr Field sumField{148, 8};
constexpr qsizetype typeOffset = 156;
constexpr Field magicField{257, 8};
constexpr QByteArrayView magic("ustar\0"
                               "00",
                               8);

void put(QByteArray& header, Field field, QByteArrayView value) {
    std::ranges::copy(value, header.begin() + field.offset);
}

QByteArray octal(qint64 number, qsizetype digits) {
    return QByteArray::number(number, 8).rightJustified(digits, '0');
}

/// The sum of all bytes, those of the sum itself as spaces.
qint64 sumOf(QByteArray header) {
    put(header, sumField, QByteArray(sumField.length, ' '));
    qint64 sum = 0;
    for (const char byte : std::as_const(header)) {
        sum += static_cast<uchar>(byte);
    }
    return sum;
}

QByteArray textOf(const QByteArray& header, Field field) {
    const QByteArray bytes = header.sliced(field.offset, field.length);
    const qsizetype end = bytes.indexOf('\0');
    return end < 0 ? bytes : bytes.first(end);
}

std::optional<qint64> numberOf(const QByteArray& header, Field field) {
    bool good = false;
    const qint64 number = textOf(header, field).trimmed().toLongLong(&good, 8);
    return good && number >= 0 ? std::optional(number) : std::nullopt;
}

qint64 padded(qint64 size) {
    return (size + block - 1) / block * block;
}

Result<void> write(QIODevice& archive, const QByteArray& bytes) {
    return archive.write(bytes) == bytes.size() ? Result<void>() : failure(archive.errorString());
}

tl::unexpected<Error> broken() {
    return failure(u"it is no archive of Ravelo, or a part of one is missing"_s);
}

} // namespace

Result<void> writeEntry(QIODevice& archive, const QByteArray& name, const QByteArray& contents) {
    QByteArray header(block, '\0');
    put(header, nameField, QByteArrayView(name).first(std::min(name.size(), nameField.length)));
    put(header, modeField, "0000600");
    put(header, {108, 8}, "0000000"); // No owner, no group, no time.
    put(header, {116, 8}, "0000000");
    put(header, sizeField, octal(contents.size(), sizeField.length - 1));
    put(header, {136, 12}, "00000000000");
    header[typeOffset] = '0';
    put(header, magicField, magic);
    put(header, sumField, octal(sumOf(header), 6) + QByteArray("\0 ", 2));
    const QByteArray rest(padded(contents.size()) - contents.size(), '\0');
    for (const QByteArray& part : {header, contents, rest}) {
        if (Result<void> written = write(archive, part); !written) {
            return written;
        }
    }
    return {};
}

Result<void> endArchive(QIODevice& archive) {
    return write(archive, QByteArray(2 * block, '\0'));
}

Result<std::optional<ArchiveEntry>> ArchiveReader::next() {
    if (!archive_.seek(next_)) {
        return broken();
    }
    const QByteArray header = archive_.read(block);
    if (header.size() != block) {
        return broken();
    }
    if (header.count('\0') == block) {
        return std::nullopt;
    }
    const auto size = numberOf(header, sizeField);
    const auto sum = numberOf(header, sumField);
    const char type = header[typeOffset];
    if (!textOf(header, magicField).startsWith("ustar") || (type != '0' && type != '\0') || !size ||
        sum != sumOf(header) || *size > archive_.size() - next_ - block) {
        return broken();
    }
    size_ = *size;
    next_ += block + padded(*size);
    return ArchiveEntry{textOf(header, nameField), *size};
}

Result<QByteArray> ArchiveReader::contents(qint64 max) {
    if (size_ > max) {
        return failure(u"a part of it is too large"_s);
    }
    QByteArray bytes = archive_.read(size_);
    return bytes.size() == size_ ? Result<QByteArray>(std::move(bytes)) : broken();
}

} // namespace ravelo
