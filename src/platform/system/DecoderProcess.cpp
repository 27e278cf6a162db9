#include "platform/system/DecoderProcess.h"

#include "decode/Packets.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using namespace decode;

/// Less than the idle time of the process, which could otherwise end just before a request.
constexpr std::chrono::seconds maxIdle(idleSeconds - 5);
constexpr qsizetype maxBad = 1000;
constexpr qsizetype maxKept = qsizetype(256) * 1024; ///< Bytes, for one picture.

constexpr uint32_t probeTime = 500; ///< Milliseconds of processor time.
constexpr uint32_t smallTime = 2500;
constexpr uint32_t wholeTime = 5000;

template <typename Value>
QByteArray bytesOf(const Value& value) {
    return {reinterpret_cast<const char*>(&value), sizeof(value)};
}

std::chrono::milliseconds timeoutOf(const Request& request) {
    return std::chrono::milliseconds(request.milliseconds * realTimeFactor) +
           std::chrono::seconds(1);
}

/// Whether the file still has a name.
bool isThere(const Descriptor& file) {
    struct stat info = {};
    return fstat(file.number(), &info) == 0 && info.st_nlink > 0;
}

PictureLook lookAt(Status status, QSize size) {
    switch (status) {
    case Status::done:
        return {PictureLook::Kind::good, size};
    case Status::tooManyPixels:
        return {PictureLook::Kind::tooManyPixels, size};
    case Status::refused:
    case Status::ready:
        break;
    }
    return {};
}

/// Whether the reply has the requested size.
bool fits(const Request& request, const DecoderConnection::Answer& answer) {
    const Reply& reply = answer.reply;
    const bool sized = request.kind == Kind::fill
                           ? reply.height == request.height && reply.width >= request.minWidth
                           : reply.height > 0 && reply.height <= request.height && reply.width > 0;
    return reply.status == Status::done && sized && reply.width <= request.maxWidth &&
           reply.bytes == int64_t{4} * reply.width * reply.height;
}

} // namespace

/// An open picture and its key in the cache.
struct DecoderProcess::Source {
    Origin origin = Origin::elsewhere;
    Descriptor descriptor; ///< What is decoded.
    Descriptor original;   ///< The file, if that is something else.
    QByteArray identity;

    explicit Source(const PictureFile& picture) {
        Descriptor opened(
            open(picture.path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        struct stat info = {};
        // A pipe or a device may block for ever.
        if (opened && fstat(opened.number(), &info) == 0 && S_ISREG(info.st_mode) &&
            info.st_size > 0 && info.st_size <= maxBytes) {
            descriptor = std::move(opened);
            identity = bytesOf(info.st_dev) + bytesOf(info.st_ino) + bytesOf(info.st_size) +
                       bytesOf(info.st_mtim);
        }
    }

    explicit Source(const PictureBytes& bytes) {
        if (!bytes.isEmpty() && bytes.size() <= maxBytes) {
            descriptor = sealedMemory(bytes);
            identity = bytesOf(bytes.size()) + bytesOf(qHash(bytes));
        }
    }
};

DecoderProcess::Origin DecoderProcess::originOf(const UntrustedPicture& picture) const {
    const auto* const file = std::get_if<PictureFile>(&picture);
    return file == nullptr                     ? Origin::copied
           : file->path.startsWith(ownFolder_) ? Origin::own
                                               : Origin::elsewhere;
}

DecoderProcess::Source DecoderProcess::sourceOf(const UntrustedPicture& picture) const {
    Source source = std::visit([](const auto& kind) { return Source(kind); }, picture);
    source.origin = originOf(picture);
    return source;
}

/// The source itself, or what is encrypted in it.
DecoderProcess::Source DecoderProcess::readable(Source source,
                                                const UntrustedPicture& picture) const {
    if (opener_ && source.origin == Origin::own && source.descriptor) {
        if (const auto opened = opener_(std::get<PictureFile>(picture).path)) {
            source.original = std::exchange(source.descriptor, sealedMemory(*opened));
        }
    }
    return source;
}

PictureLook DecoderProcess::look(const UntrustedPicture& picture) {
    const auto answer =
        ask(readable(sourceOf(picture), picture), {Kind::probe, 0, 0, 0, probeTime});
    if (!answer || answer->reply.width <= 0 || answer->reply.height <= 0) {
        return {};
    }
    return lookAt(answer->reply.status, {answer->reply.width, answer->reply.height});
}

QImage DecoderProcess::filling(const UntrustedPicture& picture, PictureShape shape) {
    return pixels(picture, {Kind::fill, shape.height, shape.minWidth, shape.maxWidth, smallTime});
}

QImage DecoderProcess::icon(const PictureFile& file, int size) {
    return pixels(file, {Kind::icon, size, 1, size, smallTime});
}

QByteArray DecoderProcess::png(const UntrustedPicture& picture) {
    auto answer = ask(readable(sourceOf(picture), picture), {Kind::png, 0, 0, 0, wholeTime});
    return answer && answer->reply.status == Status::done ? std::move(answer->contents)
                                                          : QByteArray();
}

QImage DecoderProcess::pixels(const UntrustedPicture& picture, const Request& request) {
    Source source = sourceOf(picture);
    const QByteArray key = source.identity + bytesOf(request);
    {
        const std::lock_guard lock(mutex_);
        if (const Kept* const kept = kept_.object(key)) {
            return kept->image;
        }
    }
    source = readable(std::move(source), picture);
    const auto answer = ask(source, request);
    if (!answer || !fits(request, *answer)) {
        return {};
    }
    QImage image(answer->reply.width, answer->reply.height, QImage::Format_ARGB32_Premultiplied);
    std::memcpy(image.bits(), answer->contents.constData(),
                static_cast<size_t>(answer->contents.size()));
    const auto* const file = std::get_if<PictureFile>(&picture);
    if (file != nullptr && image.sizeInBytes() <= maxKept) {
        const std::lock_guard lock(mutex_);
        if (isThere(source.original
                        ? source.original
                        : source.descriptor)) { // Otherwise `forget` may have been called before.
            kept_.insert(key, new Kept{image, file->path}, image.sizeInBytes());
        }
    }
    return image;
}

void DecoderProcess::forget(const PictureFile& file) {
    const std::lock_guard lock(mutex_);
    const QList<QByteArray> keys = kept_.keys();
    for (const QByteArray& key : keys) {
        if (kept_.object(key)->path == file.path) {
            kept_.remove(key);
        }
    }
}

void DecoderProcess::forgetOwn() {
    const std::lock_guard lock(mutex_);
    const QList<QByteArray> keys = kept_.keys();
    for (const QByteArray& key : keys) {
        if (kept_.object(key)->path.startsWith(ownFolder_)) {
            kept_.remove(key);
        }
    }
}

std::optional<DecoderConnection::Answer> DecoderProcess::ask(const Source& source,
                                                             const Request& request) {
    {
        const std::lock_guard lock(mutex_);
        if (!source.descriptor || bad_.contains(source.identity)) {
            return std::nullopt;
        }
    }
    auto connection = sent(source, request);
    if (!connection || !connection->isReady()) {
        return std::nullopt; // Not the fault of the picture.
    }
    auto answer = connection->receive(timeoutOf(request));
    if (!answer) {
        giveUp(source.identity);
    } else if (answer->reply.last == 0) {
        keep(source.origin, std::move(*connection));
    }
    return answer;
}

/// Uses an idle process or starts one.
std::optional<DecoderConnection> DecoderProcess::sent(const Source& source,
                                                      const Request& request) {
    for (auto old = idleConnection(source.origin); old; old = idleConnection(source.origin)) {
        if (old->send(request, source.descriptor)) {
            return old;
        }
    }
    using Formats = DecoderConnection::Formats;
    auto connection = DecoderConnection::start(
        program_, source.origin == Origin::own ? Formats::png : Formats::all);
    return connection && connection->send(request, source.descriptor) ? std::move(connection)
                                                                      : std::nullopt;
}

std::optional<DecoderConnection> DecoderProcess::idleConnection(Origin origin) {
    const std::lock_guard lock(mutex_);
    std::erase_if(idle_, [](const Idle& one) { return Clock::now() - one.since > maxIdle; });
    const auto newest = std::find_if(idle_.rbegin(), idle_.rend(),
                                     [origin](const Idle& one) { return one.origin == origin; });
    if (newest == idle_.rend()) {
        return std::nullopt;
    }
    DecoderConnection connection = std::move(newest->connection);
    idle_.erase(std::next(newest).base());
    return connection;
}

void DecoderProcess::keep(Origin origin, DecoderConnection connection) {
    if (origin == Origin::copied) {
        return; // It ends here.
    }
    connection.rest(std::chrono::seconds(idleSeconds));
    const std::lock_guard lock(mutex_);
    idle_.push_back({origin, std::move(connection), Clock::now()});
}

void DecoderProcess::giveUp(const QByteArray& identity) {
    const std::lock_guard lock(mutex_);
    if (bad_.size() >= maxBad) {
        bad_.clear();
    }
    bad_.insert(identity);
}

} // namespace ravelo
