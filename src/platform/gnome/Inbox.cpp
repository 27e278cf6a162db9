#include "platform/gnome/Inbox.h"

#include <utility>

namespace ravelo::gnome {

namespace {

constexpr std::size_t maxDescriptors = 64;

} // namespace

void Inbox::put(QByteArrayView bytes, std::vector<Descriptor> descriptors) {
    bytes_.append(bytes);
    for (Descriptor& descriptor : descriptors) {
        descriptors_.push_back(std::move(descriptor));
    }
    broken_ = broken_ || descriptors_.size() > maxDescriptors;
}

std::optional<QByteArray> Inbox::takeLine() {
    while (!broken_) {
        const qsizetype end = bytes_.indexOf('\n');
        isTooLong_ = isTooLong_ || (end < 0 ? bytes_.size() : end) > maxLine;
        broken_ = isTooLong_ && bytes_.startsWith('\0'); // Or whose is the descriptor?
        if (end < 0) {
            if (isTooLong_) {
                bytes_.clear(); // So that it does not pile up.
            }
            break;
        }
        QByteArray line = bytes_.first(end);
        bytes_.remove(0, end + 1);
        if (!std::exchange(isTooLong_, false) && !broken_) {
            return line;
        }
    }
    return std::nullopt;
}

std::optional<Delivery> Inbox::take() {
    const auto taken = takeLine();
    if (!taken) {
        return std::nullopt;
    }
    const QByteArray& line = *taken;
    const bool carries = line.startsWith('\0');
    auto report = parseReport(QByteArrayView(line).sliced(carries ? 1 : 0));
    const auto* given = report ? std::get_if<Given>(&*report) : nullptr;
    const bool needs = given != nullptr && given->how == Given::How::descriptor;
    broken_ = !report || carries != needs || (carries && descriptors_.empty());
    if (broken_) {
        return std::nullopt;
    }
    Delivery delivery;
    delivery.report = std::move(*report); // In an initialiser, g++ 14 believes it uninitialised.
    if (carries) {
        delivery.descriptor = std::move(descriptors_.front());
        descriptors_.pop_front();
    }
    return delivery;
}

} // namespace ravelo::gnome
