// Any store file: it is refused, or survives a round trip.

#include "Input.h"
#include "store/disk/StoreFile.h"

using namespace ravelo;

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    if (const auto store = decodeStore(fuzz::view(bytes, size).toByteArray())) {
        const QByteArray written = encodeStore(*store);
        const auto again = decodeStore(written);
        fuzz::require(again.has_value() && encodeStore(*again) == written);
    }
    return 0;
}
