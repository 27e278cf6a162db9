// Any end of a transcript, and any settings of Claude Code.

#include "Input.h"
#include "monitor/TranscriptParser.h"

using namespace ravelo;

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    const QByteArrayView input = fuzz::view(bytes, size);
    (void)compactWindow(input);
    (void)lastUsage(afterFirstLine(input));
    const QString text = QString::fromUtf8(input);
    fuzz::require(!oneLine(text).contains(u'\n') && !projectName(text, text).contains(u'\n'));
    if (const auto usage = lastUsage(input)) {
        fuzz::require(usage->tokens > 0);
        (void)prettyModel(usage->model);
    }
    return 0;
}
