#pragma once

#include "ui/paint/PaintedItem.h"

namespace ravelo {

/// Illustration of a desktop with the panel open, drawn for 320 x 186 logical pixels.
class WelcomePicture : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;
};

} // namespace ravelo
