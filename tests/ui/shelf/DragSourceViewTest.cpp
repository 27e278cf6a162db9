#include "ui/shelf/DragSourceView.h"
#include "panel_fixture/Input.h"

#include <gtest/gtest.h>

namespace ravelo {

TEST(DragSource, distinguishesADragFromATap) {
    struct Case {
        const char* name;
        QList<double> moves;
        int taps;
        int drags;
    };

    for (const Case& c :
         {Case{"still", {}, 1, 0}, Case{"trembling", {2, -3, 2}, 1, 0}, Case{"moved", {20}, 0, 1},
          Case{"moved far", {12, 12, 12, 12, -40}, 0, 1}}) {
        SCOPED_TRACE(c.name);
        QQuickWindow window;
        window.resize(100, 100);
        DragSourceView source(window.contentItem());
        source.setSize({100, 100});
        int taps = 0;
        int drags = 0;
        QObject::connect(&source, &DragSourceView::tapped, [&] { ++taps; });
        QObject::connect(&source, &DragSourceView::dragged, [&] { ++drags; });
        window.show();
        for (int again = 1; again <= 2; ++again) {
            send(window, QEvent::MouseButtonPress, {10, 50});
            double x = 10;
            for (const double move : c.moves) {
                send(window, QEvent::MouseMove, {x += move, 50});
            }
            send(window, QEvent::MouseButtonRelease, {x, 50});
            EXPECT_EQ(taps, again * c.taps);
            EXPECT_EQ(drags, again * c.drags);
        }
    }
}

} // namespace ravelo
