#include "ui/notes/Sketch.h"

#include "clipboard/ClipboardManager.h"
#include "panel/NotchController.h"
#include "store/Store.h"
#include "ui/controls/Toast.h"
#include "ui/notes/Drawing.h"

#include <algorithm>
#include <utility>

namespace ravelo {

namespace {

constexpr qsizetype maxUndo = 100;

} // namespace

Sketch::Sketch(Services services) : services_(services), strokes_(services.store.drawing()) {
    connect(&services_.store, &Store::drawingChanged, this, &Sketch::follow);
    connect(&drag_, &SketchDrag::draggingChanged, &services_.controller,
            [this] { services_.controller.setDraggingOut(drag_.isDragging()); });
}

void Sketch::setTool(Tool tool) {
    if (tool != tool_) {
        release();
        tool_ = tool;
        Q_EMIT toolChanged();
    }
}

/// By others, or because the store was locked or opened.
void Sketch::follow() {
    if (strokes_ != services_.store.drawing()) {
        before_.reset();
        drawing_ = false;
        undone_.clear();
        set(services_.store.drawing());
        Q_EMIT changed();
    }
}

void Sketch::set(QList<Stroke> strokes) {
    const QRectF region = drawing::difference(strokes_, strokes);
    strokes_ = std::move(strokes);
    Q_EMIT drawn(region);
}

void Sketch::press(QPointF point) {
    release();
    before_ = strokes_;
    last_ = point;
    tool_ == Pen ? beginStroke(point) : erase(point);
}

void Sketch::move(QPointF point) {
    if (before_ && point != last_) {
        tool_ == Pen ? draw(point) : erase(point);
        last_ = point;
    }
}

void Sketch::jump(QPointF to) {
    last_ = to;
    if (drawing_) {
        beginStroke(to);
    }
}

void Sketch::beginStroke(QPointF point) {
    drawing_ = drawing::roomFor(point, strokes_) != drawing::Room::none;
    if (drawing_) {
        strokes_.append({QUuid::createUuid(), {point}});
        Q_EMIT drawn(drawing::endOf(strokes_.last()));
    } else {
        services_.toast.flash(tr("The sketch is full"));
    }
}

void Sketch::draw(QPointF point) {
    if (drawing_ && drawing::isFull(strokes_)) {
        release(); // Further moves do nothing, so the user sees one message.
        services_.toast.flash(tr("The sketch is full"));
        return;
    }
    if (drawing_ && drawing::roomFor(point, strokes_) == drawing::Room::newStroke) {
        beginStroke(last_);
    }
    if (drawing_ && drawing::roomFor(point, strokes_) == drawing::Room::lastStroke) {
        strokes_.last().points.append(point);
        Q_EMIT drawn(drawing::endOf(strokes_.last()));
    }
}

void Sketch::erase(QPointF to) {
    if (auto left = drawing::erased(strokes_, {last_, to})) {
        set(std::move(*left));
    }
}

void Sketch::release() {
    drawing_ = false;
    const auto before = std::exchange(before_, std::nullopt);
    if (before && *before != strokes_) {
        undone_.append(*before);
        undone_.remove(0, std::max<qsizetype>(0, undone_.size() - maxUndo));
        keep();
    }
}

void Sketch::keep() {
    services_.store.setDrawing(strokes_);
    services_.store.save();
    Q_EMIT changed();
}

void Sketch::undo() {
    release();
    if (canUndo()) {
        set(undone_.takeLast());
        keep();
    }
}

void Sketch::clear() {
    release();
    if (isEmpty()) {
        return;
    }
    undone_.clear(); // What comes next is undone on the empty pad.
    const QList<Stroke> cleared = strokes_;
    set({});
    keep();
    services_.toast.offer(tr("Sketch cleared"), tr("Undo"), [this, cleared] {
        release();
        undone_.clear();
        set(cleared + strokes_);
        keep();
    });
}

void Sketch::copy() {
    if (const QImage picture = drawing::picture(strokes_); !picture.isNull()) {
        services_.clipboard.copyPng(drawing::png(picture));
        services_.toast.flashCopied();
    }
}

void Sketch::drag(QQuickItem* from) {
    if (const QImage picture = drawing::picture(strokes_); !picture.isNull()) {
        drag_.start(picture, *from);
    }
}

void Sketch::reset() {
    release();
    setTool(Pen);
    undone_.clear();
    Q_EMIT changed();
}

} // namespace ravelo
