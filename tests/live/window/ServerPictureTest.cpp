#include "platform/x11/window/ServerPicture.h"

#include <gtest/gtest.h>

#include <QProcess>

#include <cstring>
#include <memory>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// What the server has; null if it gives nothing.
QImage kept(xcb_connection_t* connection, const x11::ServerPicture& picture) {
    const QSize size = picture.size();
    const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> reply(
        xcb_get_image_reply(connection,
                            xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, picture.pixmap(),
                                          0, 0, static_cast<uint16_t>(size.width()),
                                          static_cast<uint16_t>(size.height()), ~0U),
                            nullptr),
        &std::free);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (!reply || xcb_get_image_data_length(reply.get()) != image.sizeInBytes()) {
        return {};
    }
    std::memcpy(image.bits(), xcb_get_image_data(reply.get()), image.sizeInBytes());
    return image;
}

/// Larger than a request, and each pixel another.
QImage manyColors() {
    QImage image(301, 203, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, qRgba(x % 200, y % 200, (x + y) % 200, 200 + x / 200));
        }
    }
    return image;
}

TEST(ServerPicture, IsTheSameWithAndWithoutSharedMemory) {
    for (const bool shared : {true, false}) {
        SCOPED_TRACE(shared ? "shared" : "in slices");
        QProcess server;
        QStringList arguments{u"-displayfd"_s, u"1"_s};
        if (!shared) {
            arguments << u"-extension"_s << u"MIT-SHM"_s;
        }
        server.start(u"Xvfb"_s, arguments);
        ASSERT_TRUE(server.waitForReadyRead(60000)) << "no X server";
        const QByteArray display = ':' + server.readLine().trimmed();
        xcb_connection_t* const connection = xcb_connect(display.constData(), nullptr);
        {
            const xcb_window_t root =
                xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
            const x11::ServerPicture picture(connection, root, manyColors());
            EXPECT_EQ(kept(connection, picture), manyColors());
            server.kill();
            server.waitForFinished();
            const x11::ServerPicture late(connection, root, manyColors());
            EXPECT_TRUE(kept(connection, late).isNull()) << "the server is gone";
        }
        xcb_disconnect(connection);
    }
}

} // namespace
} // namespace ravelo
