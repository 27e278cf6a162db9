#pragma once

#include "base/Handle.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QUrl>

#include <memory>

namespace ravelo {

class DetachedJobs;
class FileIcons;
class ImageDecoder;

/// Drags files out of the panel, to be copied wherever they are dropped. Main thread.
class FileDrag : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")

public:
    FileDrag(DetachedJobs& jobs, std::shared_ptr<const FileIcons> icons,
             std::shared_ptr<ImageDecoder> decoder);

    /// These may be dragged soon: gets their icons ready.
    Q_INVOKABLE void prepare(const QList<QUrl>& files, QQuickItem* from);

    /// Begins one drag, which ends by itself; nothing where there are no files or a drag is on.
    /// What is begun from may go meanwhile.
    Q_INVOKABLE void start(const QList<QUrl>& files, QQuickItem* from);

    [[nodiscard]] bool isDragging() const { return dragging_; }

Q_SIGNALS:
    void draggingChanged();

private:
    void setDragging(bool dragging);
    void drag(const QList<QUrl>& files, double scale);

    DetachedJobs& jobs_;
    std::shared_ptr<const FileIcons> icons_;
    std::shared_ptr<ImageDecoder> decoder_;
    QList<QUrl> prepared_;
    QList<QImage> pictures_; ///< Of `prepared_`; none before they are ready.
    bool dragging_ = false;
    Handle preparing_;
};

} // namespace ravelo
