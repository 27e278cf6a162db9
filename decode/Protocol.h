#pragma once

#include <cstdint>

/// What Ravelo and ravelo-decode say to each other over a SOCK_SEQPACKET socket: one packet a
/// request, with the descriptor of the picture; one packet a reply, with the descriptor of a sealed
/// memfd if there is something to return. The first reply answers nothing: it says that all is
/// ready. Both come from the same package, so there is no version.
namespace ravelo::decode {

inline constexpr int socketNumber = 3; ///< The socket's descriptor in ravelo-decode.
inline constexpr int idleSeconds = 20; ///< It ends after that long without a request.
/// Bytes of a picture and of a reply: what is made can be read back. A PNG of `maxPixels` has
/// fewer.
inline constexpr int64_t maxBytes = 160 << 20;
/// Pixels that are read whole, so that what is kept can be shown. A screen of 8K just fits in.
inline constexpr int64_t maxPixels = 32 << 20;
inline constexpr int maxSide = 4096;          ///< Pixels, of a picture that is asked for.
inline constexpr uint32_t realTimeFactor = 4; ///< A busy machine may take that much longer.

enum class Kind : uint32_t {
    probe, ///< The natural size, upright.
    fill,  ///< As premultiplied ARGB32 of `height` and of the width that its shape asks for,
           ///< between `minWidth` and `maxWidth`; cropped around its middle to fill it.
    icon,  ///< Likewise, as large as fits into `maxWidth` x `height`. May be an SVG.
    png,   ///< All of it, as a PNG file.
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
    refused, ///< It is no picture or of no kind that is read here.
    tooManyPixels,
    ready, ///< Sent once, unasked, as soon as requests are read.
};

struct Reply {
    Status status;
    int32_t width;
    int32_t height;
    uint32_t last; ///< Not 0: ravelo-decode ends now.
    int64_t bytes; ///< In the memfd; there is none if it is 0.
};

} // namespace ravelo::decode
