#pragma once

#include "ui/paint/PaintedItem.h"
#include "ui/theme/TextStyle.h"

#include <QColor>

#include <memory>

namespace ravelo {

struct GlyphLine;

/// One line of plain text in a type style, elided where the item is too narrow, in a box as high as
/// the style's line.
///
/// Stands in for Text, which knows neither lines of a fixed height nor digits of one width, and
/// costs more.
class Label : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER text_ NOTIFY contentChanged)
    Q_PROPERTY(ravelo::TextStyle* style READ style WRITE setStyle NOTIFY contentChanged)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(bool centred MEMBER centred_ NOTIFY contentChanged)
    /// What is left out where it is too narrow is its middle, not its end.
    Q_PROPERTY(bool keepsEnd MEMBER keepsEnd_ NOTIFY contentChanged)
    /// All digits as wide as "0", so that the text does not tremble as it counts. (Qt 6.4 cannot
    /// ask a font for its tabular digits.)
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

    QString text_;
    TextStyle* style_ = nullptr; ///< The theme's, which outlives every label.
    QColor color_ = Qt::white;
    bool centred_ = false;
    bool keepsEnd_ = false;
    bool tabular_ = false;
    std::shared_ptr<const GlyphLine> natural_; ///< As wide as it wants to be.
    std::shared_ptr<const GlyphLine> line_;    ///< As it is drawn; null if stale.
};

} // namespace ravelo
