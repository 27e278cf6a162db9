// Any end of a transcript, and any settings of Claude Code.

#include "monitor/Transcript.h"
#include "Input.h"

using namespace ravelo;

namespace {

/// A sum that no 64 bits hold ends the process, as it is meant to.
bool mayOverflow(QByteArrayView bytes) {
    constexpr int digitsThatFit = 17;
    int digits = 0;
    for (const char c : bytes) {
        if (digits > 0 && (c == 'e' || c == 'E')) {
            return true;
        }
        digits = c >= '0' && c <= '9' ? digits + 1 : 0;
        if (digits > digitsThatFit) {
            return true;
        }
    }
    return false;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    const QByteArrayView input = fuzz::view(bytes, size);
    (void)compactWindow(input);
    if (!mayOverflow(input)) {
        if (const auto usage = lastUsage(input)) {
            fuzz::require(usage->tokens > 0);
            (void)prettyModel(usage->model);
        }
    }
    return 0;
}
