#include "ui/notes/SketchDrag.h"

#include "base/FileUrl.h"
#include "base/Files.h"
#include "ui/notes/Drawing.h"

#include <QFile>
#include <QMimeData>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const auto pngType = u"image/png"_s;
const auto filesType = u"text/uri-list"_s;

/// Makes its file when somebody asks for it.
class Picture : public QMimeData {
public:
    Picture(QByteArray png, std::shared_ptr<QTemporaryDir> folder)
        : png_(std::move(png)), folder_(std::move(folder)) {}

    [[nodiscard]] bool hasFormat(const QString& type) const override {
        return formats().contains(type);
    }

    [[nodiscard]] QStringList formats() const override { return {filesType, pngType}; }

protected:
    [[nodiscard]] QVariant retrieveData(const QString& type, QMetaType /*wanted*/) const override {
        if (type == pngType) {
            return png_;
        }
        return type == filesType ? QVariant(file()) : QVariant();
    }

private:
    /// Its address (RFC 2483); empty if it cannot be written.
    [[nodiscard]] QByteArray file() const {
        const QString path = folder_->filePath(u"Sketch.png"_s);
        const bool written =
            folder_->isValid() && (QFile::exists(path) || writeFileAtomically(path, png_));
        return written ? fileAddress(QUrl::fromLocalFile(path)) + "\r\n" : QByteArray();
    }

    QByteArray png_;
    std::shared_ptr<QTemporaryDir> folder_;
};

} // namespace

SketchDrag::SketchDrag() = default;
SketchDrag::~SketchDrag() = default;

void SketchDrag::start(const QImage& picture, QQuickItem& from) {
    from.ungrabMouse();
    if (isDragging()) {
        return;
    }
    setDragging(true);
    // Deferred: a drag runs its own event loop, in which the pressed item may be deleted.
    QMetaObject::invokeMethod(
        this, [this, picture, scale = scaleOf(from)] { dragPicture(picture, scale); },
        Qt::QueuedConnection);
}

void SketchDrag::dragPicture(const QImage& picture, double scale) {
    folder_ = std::make_shared<QTemporaryDir>(
        QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
        u"/ravelo-sketch-XXXXXX"_s);
    QImage thumb =
        picture.scaled(QSize(96, 96) * scale, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    thumb.setDevicePixelRatio(scale);
    drag(new Picture(drawing::png(picture), folder_), thumb,
         QPointF(thumb.width(), thumb.height()) / scale / 2);
}

} // namespace ravelo
