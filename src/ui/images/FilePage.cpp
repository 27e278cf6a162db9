#include "ui/images/FilePage.h"

#include <QPainter>
#include <QPainterPath>
#include <QStringList>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

// In units of the drawing, 50 x 62.
constexpr QSizeF pageSize(50, 62);
constexpr double sizeAround = 64;
constexpr qsizetype maxTagLength = 4;

struct Kind {
    QRgb color;
    QStringList extensions;
};

const QList<Kind>& kinds() {
    // Never destroyed: a picture may still be in progress when the process ends.
    static const auto& all = *new QList<Kind>{
        {0xe5534b, {u"pdf"_s, u"ps"_s, u"djvu"_s}},
        {0x2e9e63, {u"xls"_s, u"xlsx"_s, u"ods"_s, u"csv"_s, u"tsv"_s}},
        {0x3f7be0, {u"doc"_s, u"docx"_s, u"odt"_s, u"rtf"_s, u"txt"_s, u"md"_s, u"epub"_s}},
        {0xd9773f, {u"ppt"_s, u"pptx"_s, u"odp"_s, u"key"_s}},
        {0x7a66d9, {u"mp4"_s, u"mkv"_s, u"mov"_s, u"webm"_s, u"avi"_s, u"m4v"_s}},
        {0xc9559b, {u"mp3"_s, u"flac"_s, u"ogg"_s, u"opus"_s, u"wav"_s, u"m4a"_s}},
        {0xb98a2f, {u"zip"_s, u"gz"_s, u"xz"_s, u"zst"_s, u"bz2"_s, u"tar"_s, u"7z"_s, u"rar"_s}},
        {0x2f93a8,
         {u"png"_s, u"jpg"_s, u"jpeg"_s, u"heic"_s, u"heif"_s, u"gif"_s, u"tiff"_s, u"tif"_s,
          u"webp"_s, u"bmp"_s, u"svg"_s}},
    };
    return all;
}

QColor colorOf(const QString& extension) {
    for (const Kind& kind : kinds()) {
        if (kind.extensions.contains(extension)) {
            return QColor(kind.color);
        }
    }
    return QColor(0x6b7482);
}

/// Three letters are enough for these.
QString tagOf(const QString& extension) {
    const QString tag = extension.toUpper();
    const bool office = tag.size() == 4 && (tag == u"DOCX" || tag == u"XLSX" || tag == u"PPTX");
    return office ? tag.first(3) : tag.first(std::min(tag.size(), maxTagLength));
}

void drawSheet(QPainter& painter) {
    QPainterPath sheet(QPointF(8, 1));
    sheet.lineTo(33, 1);
    sheet.lineTo(47, 15);
    sheet.lineTo(47, 55);
    sheet.arcTo(QRectF(35, 49, 12, 12), 0, -90);
    sheet.lineTo(8, 61);
    sheet.arcTo(QRectF(3, 51, 10, 10), -90, -90);
    sheet.lineTo(3, 6);
    sheet.arcTo(QRectF(3, 1, 10, 10), 180, -90);
    QLinearGradient light(0, 0, 0, pageSize.height());
    light.setColorAt(0, QColor(0xfdfdfe));
    light.setColorAt(1, QColor(0xe3e6ec));
    painter.setBrush(light);
    painter.drawPath(sheet);

    QPainterPath fold(QPointF(33, 1));
    fold.lineTo(47, 15);
    fold.lineTo(37, 15);
    fold.arcTo(QRectF(33, 7, 8, 8), -90, -90);
    painter.setBrush(QColor(0xc3c9d4));
    painter.drawPath(fold);

    painter.setBrush(QColor(0xcdd3dd));
    painter.drawRoundedRect(QRectF(9, 22, 26, 3), 1.5, 1.5);
    painter.drawRoundedRect(QRectF(9, 29, 20, 3), 1.5, 1.5);
}

void drawTag(QPainter& painter, const QString& extension) {
    const QRectF tag(8, 40, 34, 14);
    painter.setBrush(colorOf(extension.toLower()));
    painter.drawRoundedRect(tag, 4, 4);
    QFont font(u"Inter"_s);
    font.setPixelSize(100); // Large, then scaled with the painter.
    font.setWeight(QFont::Bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath letters;
    letters.addText(0, 0, font, tagOf(extension));
    const QRectF box = letters.boundingRect();
    constexpr double fontSize = 9.5;
    const double scale = std::min(fontSize / 100, (tag.width() - 4) / box.width());
    painter.translate(tag.center());
    painter.scale(scale, scale);
    painter.translate(-box.center().x(), 36); // Half the cap height.
    painter.setBrush(Qt::white);
    painter.drawPath(letters);
}

} // namespace

QImage filePage(const QString& extension, int size) {
    const double scale = size / sizeAround;
    QImage page(size, size, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::transparent);
    QPainter painter(&page);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.translate((size - pageSize.width() * scale) / 2,
                      (size - pageSize.height() * scale) / 2);
    painter.scale(scale, scale);
    drawSheet(painter);
    if (!extension.isEmpty()) {
        drawTag(painter, extension);
    }
    return page;
}

} // namespace ravelo
