#pragma once

#include "ui/paint/PaintedItem.h"

namespace ravelo {

/// What the program does in one small picture: a desktop with the panel open at its top edge. Drawn
/// for 320 x 186 logical pixels.
class WelcomePicture : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;
};

} // namespace ravelo
