#pragma once

#include <QImage>
#include <QQuickItem>

namespace ravelo {

// NOLINTBEGIN(readability-identifier-naming): QML demands capitals.
/// What the panel can count on behind itself.
namespace Backdrop {
Q_NAMESPACE
QML_ELEMENT

enum Kind {
    Blurred,     ///< The desktop blurs what lies behind.
    Translucent, ///< It shows through, sharp.
    Opaque,      ///< Nothing shows through.
};
Q_ENUM_NS(Kind)
} // namespace Backdrop

// NOLINTEND(readability-identifier-naming)

struct PanelMaterial {
    Backdrop::Kind backdrop = Backdrop::Translucent;
    double darkness = 0.55; ///< 0 to 1: how black the top is.
    bool fullBlack = false;

    friend bool operator==(const PanelMaterial&, const PanelMaterial&) = default;
};

/// The panel without its content: outline, material, darkening gradient and edge, `scale` device
/// pixels a logical one.
[[nodiscard]] QImage panelImage(QSizeF size, double scale, const PanelMaterial& material);

/// Shows it. Painted anew only when its size or material changes.
class PanelBackground : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ravelo::Backdrop::Kind backdrop READ backdrop WRITE setBackdrop NOTIFY changed)
    Q_PROPERTY(double darkness READ darkness WRITE setDarkness NOTIFY changed)
    Q_PROPERTY(bool fullBlack READ fullBlack WRITE setFullBlack NOTIFY changed)

public:
    explicit PanelBackground(QQuickItem* parent = nullptr);

    [[nodiscard]] Backdrop::Kind backdrop() const { return material_.backdrop; }

    [[nodiscard]] double darkness() const { return material_.darkness; }

    [[nodiscard]] bool fullBlack() const { return material_.fullBlack; }

    void setBackdrop(Backdrop::Kind backdrop);
    void setDarkness(double darkness);
    void setFullBlack(bool fullBlack);

Q_SIGNALS:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    PanelMaterial material_;
};

} // namespace ravelo
