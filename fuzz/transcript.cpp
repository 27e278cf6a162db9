// Any end of a transcript, and any settings of Claude Code.

#include "Input.h"
#include "monitor/TranscriptParser.h"

using namespace ravelo;

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    const QByteArrayView input = fuzz::view(bytes, size);
    (void)compactWindow(input);
    if (const auto usage = lastUsage(input)) {
        fuzz::require(usage->tokens > 0);
        (void)prettyModel(usage->model);
    }
    return 0;
}
