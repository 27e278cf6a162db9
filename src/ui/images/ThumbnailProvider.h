#pragma once

#include "ui/images/SlowWork.h"

#include <QImage>
#include <QQuickAsyncImageProvider>

namespace ravelo {

/// Rounds the corners, in device pixels; null if `picture` is null.
[[nodiscard]] QImage rounded(const QImage& picture, double radius);

/// Makes pictures off the main thread, in the requested size.
class ThumbnailProvider : public QQuickAsyncImageProvider {
public:
    /// Makes the named picture in device pixels, on a thread of its own.
    using Make = std::function<QImage(const QString& name, QSize size)>;

    explicit ThumbnailProvider(Make make) : make_(std::move(make)) {}

    QQuickImageResponse* requestImageResponse(const QString& id,
                                              const QSize& requestedSize) override;

private:
    Make make_;
    SlowWork work_;
};

} // namespace ravelo
