// Any store file: it is refused, or comes back the same from what it is written as.

#include "Input.h"
#include "store/StoreFile.h"

using namespace ravelo;

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    if (const auto store = decodeStore(fuzz::view(bytes, size).toByteArray())) {
        const QByteArray written = encodeStore(*store);
        const auto again = decodeStore(written);
        fuzz::require(again.has_value() && encodeStore(*again) == written);
    }
    return 0;
}
