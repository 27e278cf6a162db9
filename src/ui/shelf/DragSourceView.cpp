#include "ui/shelf/DragSourceView.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QStyleHints>

#include <utility>

namespace ravelo {

DragSourceView::DragSourceView(QQuickItem* parent) : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
}

void DragSourceView::setProvider(const QJSValue& provider) {
    provider_ = provider;
    Q_EMIT providerChanged();
}

QList<QUrl> DragSourceView::files() const {
    QList<QUrl> files;
    // A C++ list or a QML array.
    for (const QVariant& file : provider_.call().toVariant().value<QVariantList>()) {
        files.append(file.toUrl());
    }
    return files;
}

void DragSourceView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        Q_EMIT menuRequested(event->position());
        return;
    }
    didDrag_ = false;
    pressPlace_ = event->position();
    setKeepMouseGrab(true); // Else a surrounding list would scroll.
    setPressed(true);
}

void DragSourceView::mouseMoveEvent(QMouseEvent* event) {
    const auto moved = (event->position() - pressPlace_).manhattanLength();
    // Ignores small movements of the hand.
    if (pressed_ && !didDrag_ && moved >= QGuiApplication::styleHints()->startDragDistance()) {
        didDrag_ = true;
        setPressed(false);
        Q_EMIT dragged();
    }
}

void DragSourceView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const bool tap = pressed_ && !didDrag_;
    setPressed(false);
    if (tap && contains(event->position())) {
        Q_EMIT tapped();
    }
}

void DragSourceView::mouseUngrabEvent() {
    setPressed(false);
}

void DragSourceView::setPressed(bool pressed) {
    if (std::exchange(pressed_, pressed) != pressed) {
        Q_EMIT pressedChanged();
    }
}

} // namespace ravelo
