#pragma once

#include "fakes/PanelWorld.h"
#include "ui/PanelView.h"

#include <QQuickItem>

#include <functional>

namespace ravelo {

using Milliseconds = std::chrono::milliseconds;

/// Runs the event loop, so that what loads or moves comes to an end.
void settle(Milliseconds time = Milliseconds(700));

/// Pointer and keys on one window. An item is named by a path of object names, each below the
/// previous one; a name that does not exist ends the program.
class Hand {
public:
    explicit Hand(QQuickWindow& window) : window_(window) {}

    [[nodiscard]] QQuickItem& item(const QString& path) const;

    void point(QPointF place);
    void point(const QString& path);
    void hold(const QString& path); ///< Presses the button.
    void click(const QString& path, Qt::MouseButton button = Qt::LeftButton);
    void scroll(QPointF place, int angle); ///< In eighths of a degree; negative to the end.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString& text);

private:
    [[nodiscard]] QPointF middle(const QString& path) const;

    QQuickWindow& window_;
};

/// The panel of a scene.
struct Stage {
    PanelWorld& world;
    PanelView& view;
    Hand hand{view.window()};
    Milliseconds rest{700}; ///< Before the picture is taken.
};

struct Scene {
    QString name;
    std::function<void(Stage&)> prepare; ///< Before the window is shown.
    std::function<void(Stage&)> play;    ///< On the open panel; without it, it stays closed.
};

using Scenes = QList<Scene>;

inline void nothing(const Stage&) {}

[[nodiscard]] Scenes barScenes();
[[nodiscard]] Scenes captureScenes();
[[nodiscard]] Scenes clipScenes();
[[nodiscard]] Scenes focusScenes();
[[nodiscard]] Scenes noticeScenes();
[[nodiscard]] Scenes notesScenes();
[[nodiscard]] Scenes panelScenes();
[[nodiscard]] Scenes shelfScenes();
[[nodiscard]] Scenes snippetScenes();

} // namespace ravelo
