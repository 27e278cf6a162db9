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

std::optional<Delivery> Inbox::take() {
    const qsizetype end = bytes_.indexOf('\n');
    broken_ = broken_ || end > maxLine || (end < 0 && bytes_.size() > maxLine);
    if (broken_ || end < 0) {
        return std::nullopt;
    }
    const QByteArray line = bytes_.first(end);
    bytes_.remove(0, end + 1);
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
