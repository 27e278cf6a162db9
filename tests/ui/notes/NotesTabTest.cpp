#include "base/Files.h"
#include "panel_fixture/PanelFixture.h"
#include "support/TestPictures.h"
#include "ui/notes/Drawing.h"

#include <qpa/qwindowsysteminterface.h>

namespace ravelo {

namespace {

class NotesTab : public Panel {
public:
    NotesTab() { openTab(u"Notes"_s); }

    void startSketch() {
        clickOn(u"sketchPad"_s);
        canvas = item(u"canvas"_s);
        view.window().grabWindow();
    }

    void send(QEvent::Type type, QPointF place) {
        QMouseEvent event(type, canvas->mapToScene(place), view.window().mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&view.window(), &event);
    }

    void draw(const QList<QPointF>& points) {
        send(QEvent::MouseButtonPress, points.first());
        for (const QPointF point : points.sliced(1)) {
            send(QEvent::MouseMove, point);
        }
        send(QEvent::MouseButtonRelease, points.last());
    }

    [[nodiscard]] const QList<Stroke>& drawing() const { return world.store.drawing(); }

    QQuickItem* canvas = nullptr;
};

TEST_F(NotesTab, AStrokeEndsWithOneMessageWhenTheSketchIsFull) {
    Stroke most{QUuid::createUuid(), {}};
    for (qsizetype i = 0; i < drawing::maxPoints - 3; ++i) {
        most.points.append({static_cast<double>(i % 100), 1});
    }
    world.store.setDrawing({most});
    startSketch();
    Toast& toast = view.features().toast;
    int messages = 0;
    QObject::connect(&toast, &Toast::textChanged, &toast,
                     [&] { messages += toast.text() == u"The sketch is full"_s ? 1 : 0; });
    draw({{10, 10}, {20, 10}, {30, 10}, {40, 10}, {50, 10}, {60, 10}});
    EXPECT_EQ(drawing().last().points.size(), 3) << "as much as has room";
    EXPECT_EQ(messages, 1);
}

TEST_F(NotesTab, TheIconsSwitchBetweenNoteSecondNoteAndSketch) {
    EXPECT_EQ(text(u"caption"_s), u"Quick note"_s);
    clickOn(u"secondNote"_s);
    EXPECT_EQ(text(u"caption"_s), u"Second note"_s);
    EXPECT_EQ(text(u"noteInput"_s), QString());
    clickOn(u"noteInput"_s);
    type(u"more"_s);
    EXPECT_EQ(world.store.note2(), u"more"_s);
    EXPECT_EQ(world.store.note(), u"remember"_s) << "the other note is untouched";
    clickOn(u"sketchPad"_s);
    EXPECT_EQ(text(u"caption"_s), u"Sketch"_s);
    EXPECT_EQ(shown(u"noteInput"_s), nullptr);
    clickOn(u"sketchPad"_s);
    EXPECT_EQ(text(u"noteInput"_s), u"remember"_s) << "pressed again, it goes back";
    clickOn(u"secondNote"_s);
    rebuild();
    open();
    EXPECT_EQ(text(u"noteInput"_s), u"remember"_s) << "the quick note is what opens";
    EXPECT_EQ(world.store.note2(), u"more"_s);
}

TEST_F(NotesTab, EveryPointOfAStrokeIsKeptAndCanBeUndone) {
    startSketch();
    QList<QPointF> wave;
    for (int i = 0; i < 300; ++i) { // All before the next frame.
        wave.append({20.0 + i, 60.5 + i % 40});
    }
    draw(wave);
    ASSERT_EQ(drawing().size(), 1);
    EXPECT_EQ(drawing()[0].points, wave);
    draw({{50, 50}});
    EXPECT_EQ(drawing().size(), 2) << "a dot is a stroke";
    clickOn(u"undoStroke"_s);
    EXPECT_EQ(drawing().size(), 1);
    clickOn(u"eraser"_s);
    draw({{150, 0}, {150, 140}});
    EXPECT_EQ(drawing().size(), 2) << "cut in two";
    pressKeys(u"Ctrl+Z"_s);
    EXPECT_EQ(drawing().size(), 1);
    clickOn(u"pen"_s);
    draw({{100, 100}, {-20, 100}, {-20, 150}, {100, 150}});
    ASSERT_EQ(drawing().size(), 3) << "what is drawn outside is left out";
    EXPECT_EQ(drawing()[1].points.last(), QPointF(0, 100));
    clickOn(u"undoStroke"_s);
    EXPECT_EQ(drawing().size(), 1) << "one stroke of the hand is one step";
}

TEST_F(NotesTab, AFingerDrawsEveryPoint) {
    startSketch();
    QPointingDevice screen(u"screen"_s, 7, QInputDevice::DeviceType::TouchScreen,
                           QPointingDevice::PointerType::Finger, QInputDevice::Capability::Position,
                           5, 0);
    QWindowSystemInterface::registerInputDevice(&screen);
    const auto touch = [&](QEventPoint::State state, QPointF place) {
        QWindowSystemInterface::TouchPoint point;
        point.id = 1;
        point.state = state;
        point.area = QRectF(0, 0, 8, 8);
        point.area.moveCenter(view.window().mapToGlobal(canvas->mapToScene(place)));
        QWindowSystemInterface::handleTouchEvent<QWindowSystemInterface::SynchronousDelivery>(
            &view.window(), &screen, {point});
    };
    touch(QEventPoint::Pressed, {30, 30});
    for (int i = 1; i < 50; ++i) { // All before the next frame.
        touch(QEventPoint::Updated, {30.0 + i, 30});
    }
    touch(QEventPoint::Released, {79, 30});
    ASSERT_EQ(drawing().size(), 1);
    EXPECT_EQ(drawing()[0].points.size(), 50);
}

TEST_F(NotesTab, ClearingIsUndoneByTheToast) {
    startSketch();
    draw({{10, 10}, {60, 60}});
    clickOn(u"clearSketch"_s);
    EXPECT_EQ(drawing(), QList<Stroke>());
    EXPECT_EQ(toast(), u"Sketch cleared"_s);
    draw({{80, 10}, {90, 60}});
    view.features().toast.act();
    EXPECT_EQ(drawing().size(), 2) << "what came meanwhile stays";
}

TEST_F(NotesTab, AStrokeIsVisibleUntilItIsUndone) {
    startSketch();
    const QRect place = canvas->mapRectToScene(QRectF(150, 36, 88, 28)).toRect(); // In two tiles.
    const auto light = [&] { // How many pixels are, in both halves.
        const QImage image = view.window().grabWindow().copy(place);
        std::array<int, 2> count{};
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const int x = i % image.width();
            count[x * 2 / image.width()] += qGray(image.pixel(x, i / image.width())) > 128 ? 1 : 0;
        }
        return count;
    };
    EXPECT_EQ(light(), (std::array{0, 0}));
    draw({{160, 40}, {200, 60}, {230, 40}});
    EXPECT_TRUE(eventually([&] { return light()[0] > 60 && light()[1] > 60; })); // It fades in.
    clickOn(u"undoStroke"_s);
    EXPECT_EQ(light(), (std::array{0, 0}));
}

TEST_F(NotesTab, TheSketchIsCopiedAsAPng) {
    startSketch();
    draw({{10, 10}, {60, 60}});
    pressKeys(u"Ctrl+C"_s);
    EXPECT_EQ(toast(), u"Copied \u2713"_s);
    const QImage copied = QImage::fromData(world.pasteboard.bytes("image/png"_L1));
    EXPECT_NEAR(copied.width(), 2 * (50 + 24 + drawing::penWidth), 2);
}

TEST_F(NotesTab, ASnippetIsCopiedWithItsImage) {
    Snippet snippet{QUuid::createUuid(), u"title"_s, u"body"_s, u"link"_s, u"one.png"_s};
    const QByteArray png = picture("png");
    ASSERT_TRUE(writeFileAtomically(world.store.imagePath(u"one.png"_s), png));
    world.store.addSnippet(snippet);
    view.features().snippets.copy(snippet.id);
    world.scheduler.advance(Seconds(1));
    EXPECT_EQ(pasteboardText(), u"body"_s);
    EXPECT_EQ(world.pasteboard.bytes("image/png"_L1), png);
    snippet.id = QUuid::createUuid();
    snippet.imageFileName = u"gone.png"_s;
    world.store.addSnippet(snippet);
    world.pasteboard.offer({});
    view.features().snippets.copy(snippet.id);
    world.scheduler.advance(Seconds(1));
    EXPECT_EQ(pasteboardText(), u"body"_s) << "without its image";
}

} // namespace

} // namespace ravelo
