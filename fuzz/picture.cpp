// A picture of one format, as ravelo-decode reads it.

#include "Input.h"
#include "decode/Formats.h"
#include "decode/Heif.h"
#include "decode/Pictures.h"

#include <algorithm>

using namespace ravelo;
using namespace ravelo::decode;

namespace {

constexpr Request probe{Kind::probe, 0, 0, 0, 0};
constexpr Request fill{Kind::fill, 28, 20, 36, 0};
constexpr Request png{Kind::png, 0, 0, 0, 0};

/// Encoding a large picture takes longer than reading a hundred small ones.
constexpr int maxEncoded = 256 * 256;

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static const bool loaded = (loadFormats(), readHeifBy(raveloHeif()), true);
    (void)loaded;
    const QByteArray picture = fuzz::view(bytes, size).toByteArray();
    if (formatOf(picture) != FORMAT) {
        return -1; // Not for this target.
    }
    const QSize natural = decodePicture(probe, picture).size;
    const Picture filled = decodePicture(fill, picture);
    fuzz::require(filled.status != Status::done ||
                  (filled.image.size() == filled.size && filled.image.height() == fill.height &&
                   filled.image.width() >= fill.minWidth && filled.image.width() <= fill.maxWidth));
    fuzz::require(filled.status != Status::done || !natural.isEmpty());
    if (natural.width() <= maxEncoded / std::max(natural.height(), 1)) {
        const Picture whole = decodePicture(png, picture);
        fuzz::require((whole.status == Status::done) != whole.png.isEmpty());
    }
    return 0;
}
