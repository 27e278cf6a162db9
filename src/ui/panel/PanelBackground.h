#pragma once

#include "ui/paint/PaintedItem.h"

#include <QImage>

namespace ravelo {

// NOLINTBEGIN(readability-identifier-naming): QML demands capitals.
/// How the desktop shows what is behind the panel.
namespace Backdrop {
Q_NAMESPACE
QML_ELEMENT

enum Kind {
    Blurred,     ///< The desktop blurs it.
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

/// The panel without content: outline, material, darkening gradient and edge, at `scale` device
/// pixels per logical pixel.
[[nodiscard]] QImage panelImage(QSizeF size, double scale, const PanelMaterial& material);

/// Paints it. Keeps its ends and a part of its middle only.
class PanelBackground : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ravelo::Backdrop::Kind backdrop MEMBER backdrop_ NOTIFY changed)
    Q_PROPERTY(double darkness MEMBER darkness_ NOTIFY changed)
    Q_PROPERTY(bool fullBlack MEMBER fullBlack_ NOTIFY changed)

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    Backdrop::Kind backdrop_ = Backdrop::Translucent;
    double darkness_ = 0.55;
    bool fullBlack_ = false;
    QSizeF paintedSize_; ///< Size of `image_`.
    PanelMaterial painted_;
    QImage image_;
};

} // namespace ravelo
