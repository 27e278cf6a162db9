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

/// Uses ravelo-decode, started on demand. Parallel requests use separate processes, and each
/// process serves many requests. A picture that kills it or takes too long is not tried again until
/// its file changes; small pictures of files are cached.
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
    std::mutex mutex_;                       ///< Guards what follows; not held while waiting.
    std::vector<Idle> idle_;                 ///< Longest idle first.
    QSet<QByteArray> bad_;                   ///< Not to be tried again.
    QCache<QByteArray, Kept> kept_{1 << 20}; ///< By picture and request; the limit is in bytes.
};

} // namespace ravelo
