#pragma once

#include "store/Records.h"
#include "ui/notes/SketchDrag.h"

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QRectF>

#include <optional>

namespace ravelo {

class ClipboardManager;
class NotchController;
class Store;
class Toast;

/// The sketch pad: what is drawn, with which tool, and what can be undone. Saved at the end of each
/// stroke. Main thread.
class Sketch : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(Tool tool READ tool WRITE setTool NOTIFY toolChanged)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY changed)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)

public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML demands capitals.
    enum Tool { Pen, Eraser };
    Q_ENUM(Tool)

    /// All outlive this.
    struct Services {
        Store& store;
        NotchController& controller;
        ClipboardManager& clipboard;
        Toast& toast;
    };

    explicit Sketch(Services services);

    [[nodiscard]] Tool tool() const { return tool_; }

    void setTool(Tool tool);

    /// With the stroke that is being drawn.
    [[nodiscard]] const QList<Stroke>& strokes() const { return strokes_; }

    [[nodiscard]] bool isEmpty() const { return strokes_.isEmpty(); }

    [[nodiscard]] bool canUndo() const { return !undone_.isEmpty(); }

    /// The tool touches the pad, moves and is lifted. Points are in the sketch's coordinates.
    void press(QPointF point);
    void move(QPointF point);
    void jump(QPointF to); ///< It moves without drawing.
    void release();

    Q_INVOKABLE void undo();
    /// The toast offers to undo it.
    Q_INVOKABLE void clear();
    Q_INVOKABLE void copy();
    /// Drags it out of the panel as a PNG.
    Q_INVOKABLE void drag(QQuickItem* from);

    /// No longer shown: forgets what could be undone, and goes back to the pen.
    void reset();

Q_SIGNALS:
    void toolChanged();
    void changed();
    void drawn(const QRectF& region); ///< `region` looks different.

private:
    void follow();
    void draw(QPointF point);
    void beginStroke(QPointF point);
    void erase(QPointF to);
    void set(QList<Stroke> strokes);
    void keep();

    Services services_;
    SketchDrag drag_;
    Tool tool_ = Pen;
    QList<Stroke> strokes_;
    QList<QList<Stroke>> undone_;         ///< The strokes before each change, oldest first.
    std::optional<QList<Stroke>> before_; ///< The strokes before the tool touched the pad.
    bool drawing_ = false;                ///< The last of `strokes_` is being drawn.
    QPointF last_;
};

} // namespace ravelo
