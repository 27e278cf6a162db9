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
    // A list of ours or an array of QML's own.
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
    setKeepMouseGrab(true); // A list that this lies in would scroll.
    setPressed(true);
}

void DragSourceView::mouseMoveEvent(QMouseEvent* event) {
    const auto moved = (event->position() - pressPlace_).manhattanLength();
    // No hand holds still: the first pixels do not count.
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
