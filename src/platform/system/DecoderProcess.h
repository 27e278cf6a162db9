#pragma once

#include "platform/ImageDecoder.h"
#include "platform/system/DecoderConnection.h"

#include <QCache>
#include <QSet>

#include <chrono>
#include <mutex>
#include <optional>
#include <vector>

namespace ravelo {

/// By ravelo-decode, started when there is something to read. Each request in parallel has a
/// process of its own, and each process serves many. A picture that kills it, or that it works on
/// for too long, is not tried again until its file changes; small pictures of files are kept.
class DecoderProcess final : public ImageDecoder {
public:
    explicit DecoderProcess(QByteArray program) : program_(std::move(program)) {}

    [[nodiscard]] PictureLook look(const UntrustedPicture& picture) override;
    [[nodiscard]] QImage filling(const UntrustedPicture& picture, PictureShape shape) override;
    [[nodiscard]] QImage icon(const PictureFile& file, int size) override;
    [[nodiscard]] QByteArray png(const UntrustedPicture& picture) override;
    void forget(const PictureFile& file) override;

private:
    using Clock = std::chrono::steady_clock;

    struct Idle {
        DecoderConnection connection;
        Clock::time_point since;
    };

    struct Source;

    struct Kept {
        QImage image;
        QByteArray path; ///< Of its file.
    };

    [[nodiscard]] std::optional<DecoderConnection::Answer> ask(const Source& source,
                                                               const decode::Request& request);
    [[nodiscard]] QImage pixels(const UntrustedPicture& picture, const decode::Request& request);
    [[nodiscard]] std::optional<DecoderConnection> idleConnection();
    [[nodiscard]] std::optional<DecoderConnection> sent(const Source& source,
                                                        const decode::Request& request);
    void keep(DecoderConnection connection);
    void giveUp(const QByteArray& identity);

    const QByteArray program_;
    std::mutex mutex_;       ///< Over what follows; not held while anything is waited for.
    std::vector<Idle> idle_; ///< The longest idle first.
    QSet<QByteArray> bad_;   ///< Pictures that are not tried again.
    QCache<QByteArray, Kept> kept_{1 << 20}; ///< In bytes, by picture and request.
};

} // namespace ravelo
