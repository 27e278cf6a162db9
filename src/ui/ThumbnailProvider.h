#pragma once

#include "ui/SlowWork.h"

#include <QImage>
#include <QQuickAsyncImageProvider>

namespace ravelo {

/// The size of the image in a file as it is to be seen; empty where there is none.
[[nodiscard]] QSize imageSize(const QString& path);

/// A picture that fills `size` device pixels, cropped around its middle, with rounded corners;
/// a null image where the file holds none.
[[nodiscard]] QImage thumbnail(const QString& path, QSize size, double radius);

/// The same of an image that is read already.
[[nodiscard]] QImage thumbnail(const QImage& image, QSize size, double radius);

/// Pictures that are made off the main thread, in the size that is asked for.
class ThumbnailProvider : public QQuickAsyncImageProvider {
public:
    /// Makes the picture of that name in device pixels. On a thread of its own.
    using Make = std::function<QImage(const QString& name, QSize size)>;

    explicit ThumbnailProvider(Make make) : make_(std::move(make)) {}

    QQuickImageResponse* requestImageResponse(const QString& id,
                                              const QSize& requestedSize) override;

private:
    Make make_;
    SlowWork work_;
};

} // namespace ravelo
