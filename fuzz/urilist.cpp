// Any dropped list of URLs.

#include "base/UriList.h"
#include "Input.h"
#include "base/FileUrl.h"

using namespace ravelo;

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    for (const QUrl& file : localFiles(fuzz::view(bytes, size).toByteArray(), "host")) {
        const QByteArray path = filePath(file);
        fuzz::require(file.isLocalFile() && path.startsWith('/'));
        fuzz::require(filePath(fileUrl(path)) == path && !fileAddress(file).contains('\n'));
    }
    return 0;
}
