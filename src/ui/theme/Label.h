#pragma once

#include "ui/paint/PaintedItem.h"
#include "ui/theme/TextRange.h"
#include "ui/theme/TextStyle.h"

#include <QColor>

#include <memory>

namespace ravelo {

struct GlyphLine;

/// One line of plain text in a type style, elided if too narrow, as high as the style's line. Used
/// instead of Text, which has neither fixed line heights nor digits of equal width, and costs more.
class Label : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER text_ NOTIFY contentChanged)
    Q_PROPERTY(ravelo::TextStyle* style READ style WRITE setStyle NOTIFY contentChanged)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(bool centred MEMBER centred_ NOTIFY contentChanged)
    /// Elide in the middle, not at the end.
    Q_PROPERTY(bool keepsEnd MEMBER keepsEnd_ NOTIFY contentChanged)
    /// Parts to stand out.
    Q_PROPERTY(QList<ravelo::TextRange> marks MEMBER marks_ NOTIFY changed)
    /// Digits of equal width, so that a counter does not jitter. (Qt 6.4 cannot enable a font's
    /// tabular digits.)
    Q_PROPERTY(bool tabular MEMBER tabular_ NOTIFY contentChanged)

public:
    explicit Label(QQuickItem* parent = nullptr);

    [[nodiscard]] TextStyle* style() const { return style_; }

    void setStyle(TextStyle* style);

Q_SIGNALS:
    void contentChanged();

protected:
    [[nodiscard]] QRectF paintedRect() const override;
    void paint(QPainter& painter) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void componentComplete() override;

private:
    void measure();
    [[nodiscard]] std::shared_ptr<const GlyphLine> elided() const;
    [[nodiscard]] QList<QRectF> markedPlaces() const;
    void paintGlyphs(QPainter& painter, QPointF start) const;

    QString text_;
    TextStyle* style_ = nullptr; ///< Owned by the theme, which outlives every label.
    QColor color_ = Qt::white;
    bool centred_ = false;
    bool keepsEnd_ = false;
    bool tabular_ = false;
    QList<TextRange> marks_;
    std::shared_ptr<const GlyphLine> natural_; ///< At its natural width.
    std::shared_ptr<const GlyphLine> line_;    ///< As drawn; null if outdated.
};

} // namespace ravelo
