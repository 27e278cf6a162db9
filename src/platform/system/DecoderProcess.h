#pragma once

#include "platform/ImageDecoder.h"
#include "platform/system/DecoderConnection.h"

#include <QCache>
#include <QSet>

#include <chrono>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

namespace ravelo {

/// Uses ravelo-decode, started on demand. Parallel requests use separate processes. A process
/// serves many pictures of our own folder (all of them PNG, of which none is made) or many files
/// from elsewhere, never both, and only one that was copied: a picture that takes it over sees none
/// of another origin. (A copied PNG is kept unchanged, so it is first read as one of our own.) A
/// picture that kills it or takes too long is not tried again until its file changes; small
/// pictures of files are cached.
class DecoderProcess final : public ImageDecoder {
public:
    /// The contents of an encrypted picture; nothing if it cannot be read or is not encrypted. Any
    /// thread.
    using Opener = std::function<std::optional<QByteArray>(const QByteArray& path)>;

    /// `ownFolder` has the pictures that the program keeps itself; `opener`, if any, is asked for
    /// those only.
    DecoderProcess(QByteArray program, const QByteArray& ownFolder, Opener opener = {})
        : program_(std::move(program)), ownFolder_(ownFolder + '/'), opener_(std::move(opener)) {}

    [[nodiscard]] PictureLook look(const UntrustedPicture& picture) override;
    [[nodiscard]] QImage filling(const UntrustedPicture& picture, PictureShape shape) override;
    [[nodiscard]] QImage icon(const PictureFile& file, int size) override;
    [[nodiscard]] QByteArray png(const UntrustedPicture& picture) override;
    void forget(const PictureFile& file) override;

    /// Forgets all cached pictures of the own folder.
    void forgetOwn();

private:
    using Clock = std::chrono::steady_clock;

    enum class Origin { own, elsewhere, copied };

    struct Idle {
        Origin origin;
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
    [[nodiscard]] Origin originOf(const UntrustedPicture& picture) const;
    [[nodiscard]] Source sourceOf(const UntrustedPicture& picture) const;
    [[nodiscard]] Source readable(Source source, const UntrustedPicture& picture) const;
    [[nodiscard]] std::optional<DecoderConnection> idleConnection(Origin origin);
    [[nodiscard]] std::optional<DecoderConnection> sent(const Source& source,
                                                        const decode::Request& request);
    void keep(Origin origin, DecoderConnection connection);
    void giveUp(const QByteArray& identity);

    const QByteArray program_;
    const QByteArray ownFolder_; ///< With a slash at its end.
    const Opener opener_;
    std::mutex mutex_;       ///< Guards the members below; never held while waiting.
    std::vector<Idle> idle_; ///< Longest idle first.
    QSet<QByteArray> bad_;   ///< Not to be tried again.
    QCache<QByteArray, Kept> kept_{1 << 20}; ///< By picture and request; the limit is in bytes.
};

} // namespace ravelo
