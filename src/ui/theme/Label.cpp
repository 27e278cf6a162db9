#include "ui/theme/Label.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <cmath>
#include <vector>

namespace ravelo {

/// Laid out text.
struct GlyphLine {
    struct Piece {
        QGlyphRun glyphs; ///< Baseline at y 0.
        double x = 0;
    };

    QString text;
    std::vector<Piece> pieces;
    double width = 0;
};

namespace {

constexpr QColor markColor(255, 255, 255, 51);
constexpr double markRadius = 3;

void append(GlyphLine& line, const QString& text, const QFont& font, double cell) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine only = layout.createLine();
    layout.endLayout();
    const double width = only.horizontalAdvance();
    const double x = line.width + (cell > 0 ? (cell - width) / 2 : 0);
    for (QGlyphRun& run : layout.glyphRuns()) {
        QList<QPointF> positions = run.positions();
        for (QPointF& position : positions) {
            position.ry() -= only.ascent();
        }
        run.setPositions(positions);
        line.pieces.push_back({run, x});
    }
    line.width += cell > 0 ? cell : width;
}

/// Gives every digit the width of "0".
GlyphLine tabular(const QString& text, const QFont& font) {
    GlyphLine line;
    const double cell = QFontMetricsF(font).horizontalAdvance(u'0');
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = start;
        while (end < text.size() && !text[end].isDigit()) {
            ++end;
        }
        const bool digit = end == start;
        end = digit ? start + 1 : end;
        append(line, text.mid(start, end - start), font, digit ? cell : 0);
        start = end;
    }
    return line;
}

GlyphLine proportional(const QString& text, const QFont& font) {
    GlyphLine line;
    line.text = text;
    append(line, text, font, 0);
    return line;
}

/// How much of a file name's end to keep: usually the suffix and one letter.
QString endOf(const QString& name) {
    constexpr qsizetype length = 5;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, name);
    letters.setPosition(std::max(qsizetype(0), name.size() - length));
    if (!letters.isAtBoundary()) {
        letters.toPreviousBoundary();
    }
    return name.mid(letters.position());
}

} // namespace

Label::Label(QQuickItem* parent) : PaintedItem(parent) {
    connect(this, &Label::contentChanged, this, &Label::measure);
}

void Label::setStyle(TextStyle* style) {
    style_ = style;
    Q_EMIT contentChanged();
}

void Label::componentComplete() {
    PaintedItem::componentComplete();
    measure();
}

void Label::measure() {
    if (style_ == nullptr || !isComponentComplete()) {
        return; // Once, not for every initial property.
    }
    natural_ = std::make_shared<const GlyphLine>(tabular_ ? tabular(text_, style_->font())
                                                          : proportional(text_, style_->font()));
    setImplicitSize(natural_->width, style_->line());
    line_.reset();
    update();
}

std::shared_ptr<const GlyphLine> Label::elided() const {
    const QFont font = style_->font();
    const QFontMetricsF metrics(font);
    const QString end = keepsEnd_ ? endOf(text_) : QString();
    const QString shown = metrics.elidedText(text_.chopped(end.size()), Qt::ElideRight,
                                             width() - metrics.horizontalAdvance(end)) +
                          end;
    return std::make_shared<const GlyphLine>(proportional(shown, font));
}

void Label::geometryChange(const QRectF& now, const QRectF& before) {
    PaintedItem::geometryChange(now, before);
    if (now.size() != before.size()) {
        line_.reset();
        update();
    }
}

QRectF Label::paintedRect() const {
    if (text_.isEmpty() || style_ == nullptr) {
        return {};
    }
    return boundingRect().adjusted(-2, -1, 2, 1); // Glyphs may overhang the line.
}

void Label::paint(QPainter& painter) {
    if (!line_) {
        line_ = natural_->width <= width() + 0.01 ? natural_ : elided();
    }
    const double scale = painter.device()->devicePixelRatio();
    const double top = painter.transform().dy();
    const double base = top + style_->metrics().baseLine(scale);
    const double y = std::round(base * scale) / scale - top;
    const double indent = centred_ ? (width() - line_->width) / 2 : 0;
    painter.setPen(color_);
    paintGlyphs(painter, {indent, y});
    for (const QRectF& place : markedPlaces()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(markColor);
        painter.drawRoundedRect(place, markRadius, markRadius);
        painter.save();
        painter.setClipRect(place, Qt::IntersectClip);
        painter.setPen(Qt::white);
        paintGlyphs(painter, {indent, y});
        painter.restore();
    }
}

void Label::paintGlyphs(QPainter& painter, QPointF start) const {
    for (const GlyphLine::Piece& piece : line_->pieces) {
        painter.drawGlyphRun(start + QPointF(piece.x, 0), piece.glyphs);
    }
}

/// What is behind the ellipsis is not marked. Only for proportional, left-aligned labels.
QList<QRectF> Label::markedPlaces() const {
    const QString& shown = line_->text;
    if (marks_.isEmpty() || shown.isEmpty()) {
        return {};
    }
    QTextLayout layout(shown, style_->font());
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const qsizetype end = shown == text_ ? shown.size() : shown.size() - 1;
    QList<QRectF> places;
    for (const TextRange& mark : marks_) {
        if (mark.start < end) {
            const double from = line.cursorToX(int(mark.start));
            const double to = line.cursorToX(int(std::min(mark.start + mark.length, end)));
            places.append(QRectF(QPointF(std::min(from, to) - 1, 0),
                                 QPointF(std::max(from, to) + 1, height())));
        }
    }
    return places;
}

} // namespace ravelo
