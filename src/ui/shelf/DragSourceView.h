#pragma once

#include <QJSValue>
#include <QList>
#include <QQuickItem>
#include <QUrl>

namespace ravelo {

/// Distinguishes a drag of files from a tap.
class DragSourceView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// A function that returns the files.
    Q_PROPERTY(QJSValue provider READ provider WRITE setProvider NOTIFY providerChanged)
    Q_PROPERTY(bool pressed READ isPressed NOTIFY pressedChanged)

public:
    explicit DragSourceView(QQuickItem* parent = nullptr);

    [[nodiscard]] QJSValue provider() const { return provider_; }

    void setProvider(const QJSValue& provider);

    [[nodiscard]] bool isPressed() const { return pressed_; }

    /// The files that would be dragged now.
    [[nodiscard]] Q_INVOKABLE QList<QUrl> files() const;

Q_SIGNALS:
    void providerChanged();
    void pressedChanged();
    void dragged(); ///< A drag is to begin, once per press.
    void tapped();  ///< Pressed and released without movement.
    void menuRequested(const QPointF& place);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;

private:
    void setPressed(bool pressed);

    QJSValue provider_;
    bool pressed_ = false;
    bool didDrag_ = false;
    QPointF pressPlace_;
};

} // namespace ravelo
