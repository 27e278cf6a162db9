#pragma once

#include "ui/images/SlowWork.h"

#include <QImage>
#include <QQuickAsyncImageProvider>

namespace ravelo {

/// With its corners cut off, in device pixels; null if `picture` is.
[[nodiscard]] QImage rounded(const QImage& picture, double radius);

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
