#include "ui/TabularText.h"

#include "ui/PaintNode.h"

#include <QFontMetricsF>

#include <vector>

namespace ravelo {

namespace {

/// What is drawn in one go: a single digit, or all up to the next one.
struct Run {
    QString text;
    double x = 0;
};

struct Line {
    std::vector<Run> runs;
    double width = 0;
};

Line laidOut(const QString& text, const QFont& font) {
    const QFontMetricsF metrics(font);
    const double cell = metrics.horizontalAdvance(u'0');
    Line line;
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = start;
        while (end < text.size() && !text[end].isDigit()) {
            ++end;
        }
        const bool digit = end == start;
        const QString part = digit ? text.mid(start, 1) : text.mid(start, end - start);
        const double width = metrics.horizontalAdvance(part);
        line.runs.push_back({part, digit ? line.width + (cell - width) / 2 : line.width});
        line.width += digit ? cell : width;
        start += part.size();
    }
    return line;
}

class TabularNode final : public PaintNode {
public:
    using PaintNode::PaintNode;

    void set(Line line, const QFont& font, const QColor& color, double ascent,
             const QRectF& rect) {
        line_ = std::move(line);
        font_ = font;
        color_ = color;
        ascent_ = ascent;
        changed(rect);
    }

protected:
    void paint(QPainter& painter) override {
        painter.setFont(font_);
        painter.setPen(color_);
        for (const Run& run : line_.runs) {
            painter.drawText(QPointF(run.x, ascent_), run.text);
        }
    }

private:
    Line line_;
    QFont font_;
    QColor color_;
    double ascent_ = 0;
};

} // namespace

TabularText::TabularText(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &TabularText::changed, this, [this] {
        setImplicitWidth(laidOut(text_, font_).width);
        update();
    });
}

QSGNode* TabularText::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    auto* node = old == nullptr ? new TabularNode(window()) : static_cast<TabularNode*>(old);
    node->set(laidOut(text_, font_), font_, color_, ascent_, boundingRect());
    return node;
}

} // namespace ravelo
