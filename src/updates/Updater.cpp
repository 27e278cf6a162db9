#include "updates/Updater.h"

#include <utility>

namespace ravelo {

namespace {

std::unique_ptr<Updater>& provided() {
    static auto* const updater = new std::unique_ptr<Updater>; // Never destroyed.
    return *updater;
}

} // namespace

Updater::Updater(std::unique_ptr<PackageUpdates> service, QString current)
    : service_(std::move(service)), current_(std::move(current)) {}

Updater::~Updater() = default;

void Updater::provide(std::unique_ptr<PackageUpdates> service, const QString& current) {
    provided() = std::make_unique<Updater>(std::move(service), current);
}

Updater& Updater::shared() {
    Q_ASSERT(provided());
    return *provided();
}

double Updater::progress() const {
    return state_.percent ? *state_.percent / 100.0 : -1;
}

void Updater::checkForUpdates() {
    if (isBusy() || state_.phase == UpdateState::Phase::installed) { // Until it is started anew.
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
