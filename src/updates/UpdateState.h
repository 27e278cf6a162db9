#pragma once

#include "platform/PackageUpdates.h"

#include <QString>

#include <optional>

namespace ravelo {

/// The progress of checking for an update and installing it.
struct UpdateState {
    enum class Phase { idle, checking, newest, available, installing, installed, problem };

    Phase phase = Phase::idle;
    AvailableUpdate update;     ///< Valid from `available` on.
    std::optional<int> percent; ///< While installing, if known.
    UpdateProblem problem;

    [[nodiscard]] bool isBusy() const {
        return phase == Phase::checking || phase == Phase::installing;
    }

    [[nodiscard]] UpdateState checked(const PackageUpdates::Checked& found) const;
    [[nodiscard]] UpdateState installed(const PackageUpdates::Installed& done) const;

    friend bool operator==(const UpdateState&, const UpdateState&) = default;
};

/// Shown to the user.
struct UpdateMessage {
    QString title;
    QString details; ///< May be empty.

    friend bool operator==(const UpdateMessage&, const UpdateMessage&) = default;
};

/// `current` is the version of this program.
[[nodiscard]] UpdateMessage message(const UpdateState& state, const QString& current);

} // namespace ravelo
