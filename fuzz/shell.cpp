// What arrives on the extension's socket: bytes, and descriptors with each NUL byte.

#include "Input.h"
#include "platform/gnome/Inbox.h"

#include <fcntl.h>

using namespace ravelo;

namespace {

/// Whatever it carries, what we answer is one line.
void requireOneLine(const QByteArray& order) {
    fuzz::require(order.indexOf('\n') == order.size() - 1);
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    const QByteArrayView input = fuzz::view(bytes, size);
    gnome::Inbox inbox;
    for (qsizetype at = 0; at < input.size(); at += 7) {
        const QByteArrayView part = input.sliced(at, std::min<qsizetype>(7, input.size() - at));
        std::vector<Descriptor> descriptors;
        if (part.contains('\0')) {
            descriptors.emplace_back(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        }
        inbox.put(part, std::move(descriptors));
        while (const auto delivery = inbox.take()) {
            const auto* given = std::get_if<gnome::Given>(&delivery->report);
            const bool carries = given != nullptr && given->how == gnome::Given::How::descriptor;
            fuzz::require(carries == bool(delivery->descriptor));
            if (const auto* copied = std::get_if<gnome::Copied>(&delivery->report)) {
                for (const QByteArray& type : copied->types) {
                    requireOneLine(
                        gnome::want(gnome::Selection::clip, copied->serial, type, 1 << 20));
                    requireOneLine(gnome::offer(QString::fromUtf8(type), type));
                }
            }
            if (const auto* edge = std::get_if<gnome::Edge>(&delivery->report)) {
                requireOneLine(gnome::place(edge->screen.value_or(0)));
            }
            if (const auto* keyboard = std::get_if<gnome::KeyboardReport>(&delivery->report)) {
                requireOneLine(gnome::askAboutKeyboard(keyboard->serial));
                requireOneLine(gnome::hello(keyboard->layout, QSize(4, 4)));
            }
            if (const auto* screens = std::get_if<gnome::ScreensReport>(&delivery->report)) {
                for (const Screen& screen : screens->screens) {
                    fuzz::require(screen.visibleFrame.isEmpty() ||
                                  screen.frame.contains(screen.visibleFrame));
                }
            }
        }
    }
    return 0;
}
