#include "panel/TakenInput.h"

#include "platform/InputGrab.h"

#include <array>
#include <utility>

namespace ravelo {

namespace {

/// Pauses between the looks. An open panel has 50 ms to go.
constexpr std::array pauses{Seconds(0.01), Seconds(0.01), Seconds(0.01), Seconds(0.01),
                            Seconds(0.04), Seconds(0.08), Seconds(0.16)};

} // namespace

TakenInput::TakenInput(Scheduler& scheduler, InputGrab& input, std::function<Look()> look)
    : scheduler_(scheduler),
      look_(std::move(look)),
      signs_(input.onLikelyTaken([this] { lookAfter(0); })) {}

void TakenInput::lookAfter(std::size_t looks) {
    next_.reset();
    if (look_() == Look::again && looks < pauses.size()) {
        next_ = scheduler_.after(pauses[looks], [this, looks] { lookAfter(looks + 1); });
    }
}

} // namespace ravelo
