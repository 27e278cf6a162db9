#include "ui/panel/PanelBackground.h"

#include <gtest/gtest.h>

namespace ravelo {

namespace {

class PaintableBackground : public PanelBackground {
public:
    using PanelBackground::paint;
};

QImage painted(QSizeF size, double scale) {
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    PaintableBackground background;
    background.setSize(size);
    background.paint(painter);
    return image;
}

TEST(PanelBackground, looksAsIfItWerePaintedWhole) {
    struct Case {
        QSizeF size;
        double scale;
    };

    for (const auto& [size, scale] :
         {Case{{927, 560}, 1}, Case{{928, 590}, 1.25}, Case{{700, 560}, 2}, Case{{200, 300}, 1}}) {
        EXPECT_EQ(painted(size, scale), panelImage(size, scale, {}))
            << size.width() << " wide at scale " << scale;
    }
}

} // namespace

} // namespace ravelo
