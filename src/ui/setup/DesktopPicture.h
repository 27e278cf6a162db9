#pragma once

#include "ui/paint/PaintedItem.h"

namespace ravelo {

/// Illustration of a desktop with the panel, drawn for 320 x 186 logical pixels.
class DesktopPicture : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ravelo::DesktopPicture::Panel panel MEMBER panel_ NOTIFY changed)

public:
    // NOLINTBEGIN(readability-identifier-naming): QML demands capitals.
    enum Panel {
        UnderPointer, ///< Open, by the pointer.
        Outlined,     ///< Not there yet, but for the strip that would open it.
        Ready
    };
    // NOLINTEND(readability-identifier-naming)
    Q_ENUM(Panel)

    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    Panel panel_ = UnderPointer;
};

} // namespace ravelo
