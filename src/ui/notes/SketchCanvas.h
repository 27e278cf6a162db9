#pragma once

#include "ui/notes/Sketch.h"

#include <QColor>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>

#include <memory>
#include <optional>
#include <vector>

namespace ravelo {

/// Where one draws on a sketch, by mouse, pen or finger. Keeps a picture of it, in tiles on the
/// screen: only what changes is drawn and shown again. A sketch that is larger is scaled down.
class SketchCanvas : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ravelo::Sketch* sketch READ sketch WRITE setSketch NOTIFY sketchChanged REQUIRED)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY colorChanged)

public:
    explicit SketchCanvas(QQuickItem* parent = nullptr);
    ~SketchCanvas() override;

    [[nodiscard]] Sketch* sketch() const { return sketch_; }

    void setSketch(Sketch* sketch);

    bool eventFilter(QObject* window, QEvent* event) override;

Q_SIGNALS:
    void sketchChanged();
    void colorChanged();
    void pressed();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override;

private:
    class Tile;
    /// What draws: the mouse or pen, or the finger with this id.
    using Finger = std::optional<int>;

    void rebuild();
    void redraw(const QRectF& region);
    [[nodiscard]] double fittingScale() const;
    [[nodiscard]] double pixelRatio() const;
    void begin(QPointF place, Finger finger);
    void follow(QPointF place);
    void end();

    Sketch* sketch_ = nullptr;
    QColor color_;
    QImage picture_;
    double scale_ = 1;
    std::vector<std::unique_ptr<Tile>> tiles_;
    bool drawing_ = false;
    bool outside_ = false;
    bool compressed_ = true; ///< Whether Qt compressed events before drawing began.
    Finger finger_;
};

} // namespace ravelo
