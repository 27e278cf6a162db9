#include "platform/x11/selection/DragReads.h"

#include <iterator>
#include <utility>

namespace ravelo::x11 {

namespace {

/// Readers that are done are kept for a while: a source that slept may still write to their
/// windows.
constexpr std::size_t readersKept = 8;

} // namespace

void DragReads::begin(std::unique_ptr<Conversation> conversation) {
    auto& reader = readers_.emplace_back(connection_, selection_);
    reader.ownerChanged(time_);
    reader.add(0, std::move(conversation));
    for (auto old = readers_.begin(); readers_.size() > readersKept && old != readers_.end();) {
        old = old->deadline() ? std::next(old) : readers_.erase(old);
    }
}

void DragReads::handle(const xcb_generic_event_t& event) {
    for (SelectionReader& reader : readers_) {
        reader.handle(event);
    }
}

std::optional<TimePoint> DragReads::deadline() const {
    std::optional<TimePoint> first;
    for (const SelectionReader& reader : readers_) {
        if (const auto deadline = reader.deadline(); deadline && (!first || *deadline < *first)) {
            first = deadline;
        }
    }
    return first;
}

void DragReads::expire(TimePoint now) {
    for (SelectionReader& reader : readers_) {
        reader.expire(now);
    }
}

} // namespace ravelo::x11
