#pragma once

#include <QDir>
#include <QQuickAsyncImageProvider>
#include <QThreadPool>

namespace ravelo {

/// A picture that fills `size` device pixels, cropped around its middle, with rounded corners;
/// a null image where the file holds none.
[[nodiscard]] QImage thumbnail(const QString& path, QSize size, double radius);

/// "image://thumb/<radius in device pixels>/<file name>", decoded off the main thread in the size
/// that is asked for. Names lead nowhere but into `folder`.
class ThumbnailProvider : public QQuickAsyncImageProvider {
public:
    explicit ThumbnailProvider(const QDir& folder);
    ~ThumbnailProvider() override;

    QQuickImageResponse* requestImageResponse(const QString& id,
                                              const QSize& requestedSize) override;

private:
    QDir folder_;
    QThreadPool pool_;
};

} // namespace ravelo
