#include "updates/Updater.h"

#include <utility>

namespace ravelo {

Updater::Updater(std::unique_ptr<PackageUpdates> service, QString current)
    : service_(std::move(service)), current_(std::move(current)) {}

Updater::~Updater() = default;

Updater& Updater::shared(const std::function<std::unique_ptr<Updater>()>& make) {
    static Updater* const instance = make().release();
    return *instance;
}

double Updater::progress() const {
    return state_.percent ? *state_.percent / 100.0 : -1;
}

void Updater::checkForUpdates() {
    if (isBusy() || state_.phase == UpdateState::Phase::installed) { // Until Ravelo is restarted.
        return;
    }
    become({UpdateState::Phase::checking, {}, {}, {}});
    work_ = service_->check(
        [this](const PackageUpdates::Checked& found) { become(state_.checked(found)); });
}

void Updater::install() {
    if (!canInstall()) {
        return;
    }
    become({UpdateState::Phase::installing, state_.update, {}, {}});
    work_ = service_->install(
        state_.update,
        [this](std::optional<int> percent) {
            become({UpdateState::Phase::installing, state_.update, percent, {}});
        },
        [this](const PackageUpdates::Installed& done) { become(state_.installed(done)); });
}

void Updater::become(UpdateState state) {
    if (std::exchange(state_, std::move(state)) != state_) {
        Q_EMIT changed();
    }
}

} // namespace ravelo
