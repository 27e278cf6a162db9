#include "panel/Pasting.h"

#include "panel/NotchController.h"
#include "panel/PasteChords.h"
#include "platform/Pasteboard.h"

namespace ravelo {

namespace {

/// For the user to let go of the modifiers.
constexpr Seconds timeout{1.5};
constexpr Seconds interval{0.02};

} // namespace

bool Pasting::isPossible() const {
    return services_.keys != nullptr && services_.keys->isPossible();
}

std::optional<PasteKeys::Target> Pasting::target() const {
    return isPossible() ? services_.keys->target() : std::nullopt;
}

void Pasting::run(const std::optional<PasteKeys::Target>& target, const Copy& copy) {
    waiting_.reset();
    run_.reset();
    if (target) {
        run_ = Run{*target, services_.pasteboard.changeCount()};
    }
    copy([this] {
        services_.controller.dismiss();
        if (run_) {
            run_->end = services_.scheduler.uptime() + timeout;
            wait();
        }
    });
}

void Pasting::wait() {
    waiting_ = services_.scheduler.after(interval, [this] {
        waiting_.reset();
        const bool copied = services_.pasteboard.changeCount() != run_->countBefore;
        if (services_.controller.isOpen() || services_.controller.isLocked()) {
            return;
        }
        if (copied && services_.keys->readiness(run_->target).isComplete()) {
            services_.keys->press(run_->target,
                                  terminalChord(run_->target.names).value_or(PasteChord::controlV));
        } else if (services_.scheduler.uptime() < run_->end) {
            wait();
        }
    });
}

} // namespace ravelo
