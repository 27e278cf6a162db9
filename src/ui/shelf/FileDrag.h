#pragma once

#include "base/Handle.h"
#include "ui/controls/OutgoingDrag.h"

#include <QImage>
#include <QList>
#include <QQmlEngine>
#include <QQuickItem>
#include <QUrl>

#include <memory>

namespace ravelo {

class DetachedJobs;
class FileIcons;
class ImageDecoder;

/// Drags files out of the panel; drop targets get copies. Main thread.
class FileDrag : public ravelo::OutgoingDrag {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")

public:
    FileDrag(DetachedJobs& jobs, std::shared_ptr<const FileIcons> icons,
             std::shared_ptr<ImageDecoder> decoder);

    /// Prepares the icons of files that may be dragged soon.
    Q_INVOKABLE void prepare(const QList<QUrl>& files, QQuickItem* from);

    /// Starts a drag, unless there are no files or one is in progress. The item it starts from may
    /// be deleted meanwhile.
    Q_INVOKABLE void start(const QList<QUrl>& files, QQuickItem* from);

private:
    void dragFiles(const QList<QUrl>& files, double scale);

    DetachedJobs& jobs_;
    std::shared_ptr<const FileIcons> icons_;
    std::shared_ptr<ImageDecoder> decoder_;
    QList<QUrl> prepared_;
    QList<QImage> pictures_; ///< Of `prepared_`; empty until ready.
    Handle preparing_;
};

} // namespace ravelo
