#pragma once

#include <cstdint>

/// The protocol between Ravelo and ravelo-decode, over a SOCK_SEQPACKET socket. A request is one
/// packet with the descriptor of the picture; a reply is one packet, with the descriptor of a
/// sealed memfd if there is something to return. The first reply, without a request, means ready.
/// Both programs are in one package, so there is no version.
namespace ravelo::decode {

/// The argument of a ravelo-decode that reads PNG and makes none, and starts in less than half the
/// instructions.
inline constexpr const char* onlyPngOption = "png";
inline constexpr int socketNumber = 3; ///< The descriptor of the socket in ravelo-decode.
inline constexpr int idleSeconds = 20; ///< It ends after this time without a request.
/// Bytes of a picture and of a reply: what is made can be read back. A PNG of `maxPixels` has
/// fewer.
inline constexpr int64_t maxBytes = 160 << 20;
/// Pixels that are read whole, so that what is kept can be shown. Enough for an 8K
/// screen.
inline constexpr int64_t maxPixels = 32 << 20;
inline constexpr int maxSide = 4096;          ///< Pixels, of a requested picture.
inline constexpr uint32_t realTimeFactor = 4; ///< For a busy machine.

enum class Kind : uint32_t {
    probe, ///< The natural size, upright.
    fill,  ///< As premultiplied ARGB32 of `height` and of the width that its shape asks for,
           ///< between `minWidth` and `maxWidth`; cropped around its middle to fill it.
    icon,  ///< Likewise, as large as fits into `maxWidth` x `height`. May be an SVG.
    png,   ///< The whole picture as a PNG file.
};

struct Request {
    Kind kind;
    int32_t height;
    int32_t minWidth;
    int32_t maxWidth;
    uint32_t milliseconds; ///< Of processor time; then ravelo-decode is killed.
};

enum class Status : uint32_t {
    done,
    refused, ///< Not a picture, or not of a supported format.
    tooManyPixels,
    ready, ///< Sent once, when it is ready for requests.
};

struct Reply {
    Status status;
    int32_t width;
    int32_t height;
    uint32_t last; ///< Not 0: ravelo-decode ends now.
    int64_t bytes; ///< Size of the memfd; 0 if there is none.
};

} // namespace ravelo::decode
