#include "platform/x11/selection/SelectionReader.h"

#include <algorithm>

namespace ravelo::x11 {

namespace {

/// An owner that has slept through this many later transfers may find its window gone.
constexpr std::size_t windowsKept = 8;

} // namespace

void SelectionReader::add(Key key, std::unique_ptr<Conversation> conversation) {
    entries_.push_back({key, std::move(conversation)});
    if (entries_.size() == 1) {
        proceed();
    }
}

void SelectionReader::cancel(Key key) {
    const auto found =
        std::ranges::find_if(entries_, [key](const Entry& entry) { return entry.key == key; });
    if (found == entries_.end()) {
        return;
    }
    const bool underWay = found == entries_.begin();
    entries_.erase(found);
    if (underWay) {
        dropTransfer();
        proceed();
    }
}

void SelectionReader::ownerChanged(xcb_timestamp_t time) {
    time_ = time;
    entries_.clear();
    dropTransfer();
}

void SelectionReader::handle(const xcb_generic_event_t& event) {
    if (!transfer_) {
        return;
    }
    if (auto result = transfer_->handle(event)) {
        dropTransfer();
        entries_.front().conversation->take(std::move(*result));
        proceed();
    }
}

std::optional<TimePoint> SelectionReader::deadline() const {
    return transfer_ ? std::optional(transfer_->deadline()) : std::nullopt;
}

void SelectionReader::expire(TimePoint now) {
    if (transfer_ && transfer_->deadline() <= now) {
        dropTransfer();
        entries_.front().conversation->take(
            tl::unexpected(TransferFailure{TransferFailure::tooSlow}));
        proceed();
    }
}

void SelectionReader::proceed() {
    while (!entries_.empty()) {
        if (const auto request = entries_.front().conversation->next()) {
            transfer_.emplace(connection_, selection_, *request, time_);
            return;
        }
        entries_.front().conversation->finish();
        entries_.pop_front();
    }
}

void SelectionReader::dropTransfer() {
    if (!transfer_) {
        return;
    }
    if (auto window = transfer_->abandon()) {
        abandoned_.push_back(std::move(*window));
        if (abandoned_.size() > windowsKept) {
            abandoned_.pop_front();
        }
    }
    transfer_.reset();
}

} // namespace ravelo::x11
