#include "Samples.h"
#include "support/GreenHeic.h"
#include "support/TestPictures.h"

#include <random>

namespace ravelo::samples {

namespace {

/// Qt writes none.
QByteArray gif() {
    return QByteArray::fromHex(
        "47494638396140002000f0000000ff0000000021f90400000000002c000000004000200000022d848fa9cbed0f"
        "a39cb4da8bb3debcfb0f86e24896e689a6eacab6ee0bc7f24cd7f68de7facef7fe0f0c0a87a402003b");
}

QByteArray longGif() {
    const QByteArray one = gif();
    const QByteArray frame = one.sliced(19).chopped(1); // Without the header and the end.
    return one.chopped(1) + frame.repeated(100'000) + ';';
}

/// A TIFF whose directory names itself as the next.
QByteArray loopingTiff() {
    QByteArray tiff = picture("tiff");
    const auto number = [&tiff](qsizetype at, int size) {
        int value = 0;
        for (int i = size - 1; i >= 0; --i) {
            value = value << 8 | static_cast<uchar>(tiff[at + i]);
        }
        return value;
    };
    const int directory = number(4, 4);
    const int next = directory + 2 + 12 * number(directory, 2);
    return tiff.replace(next, 4, tiff.mid(4, 4));
}

QByteArray sized(QByteArray png, const char* width, const char* height) {
    return png.replace(16, 4, QByteArray::fromHex(width))
        .replace(20, 4, QByteArray::fromHex(height));
}

} // namespace

QByteArray picture(const QByteArray& format) {
    if (format == "gif") {
        return gif();
    }
    if (format == "heif") {
        return greenHeic();
    }
    return ravelo::picture(format, Qt::green, size);
}

QByteArray broken(const QByteArray& picture, quint32 seed) {
    std::mt19937 random(seed);
    const auto below = [&random](qsizetype end) {
        return static_cast<qsizetype>(random() % static_cast<quint32>(std::max<qsizetype>(end, 1)));
    };
    QByteArray bytes = picture;
    switch (seed % 4) {
    case 0:
        bytes.truncate(below(bytes.size()));
        break;
    case 1:
        for (qsizetype flips = 1 + below(8); flips > 0; --flips) {
            const qsizetype at = below(bytes.size());
            bytes[at] = static_cast<char>(bytes[at] ^ (1 << below(8)));
        }
        break;
    case 2: {
        const qsizetype at = below(bytes.size());
        for (qsizetype i = at; i < std::min(bytes.size(), at + 16); ++i) {
            bytes[i] = static_cast<char>(random());
        }
        break;
    }
    default: {
        static const std::array huge{
            QByteArray::fromHex("7fffffff"), QByteArray::fromHex("ffffff7f"),
            QByteArray::fromHex("ffffffff"), QByteArray::fromHex("0000ffff")};
        bytes.replace(below(bytes.size()), 4, huge.at(static_cast<size_t>(below(4))));
        break;
    }
    }
    return bytes;
}

QList<Bomb> bombs() {
    const QByteArray small = picture("png");
    return {{"a PNG that says it is huge", sized(small, "0000ea60", "0000ea60")},
            {"a PNG of nothing but a large size", emptyPicture("png", {30'000, 30'000})},
            {"a PNG that is just too large", emptyPicture("png", {8192, 4097})},
            {"a PNG with a larger size than pixels", sized(small, "00001000", "00001000")},
            {"a GIF of many frames", longGif()},
            {"a TIFF that goes round in circles", loopingTiff()},
            {"a drawing", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>"},
            {"a page", "<html></html>"},
            {"nothing", {}}};
}

} // namespace ravelo::samples
