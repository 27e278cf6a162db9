#pragma once

#include "base/Handle.h"

#include <QString>

#include <tl/expected.hpp>

#include <functional>
#include <optional>

namespace ravelo {

struct UpdateProblem {
    enum class Kind {
        noService,         ///< No service here installs updates.
        notFromRepository, ///< The program was not installed from a repository.
        notAllowed,        ///< By the system or the user.
        failed,
    };

    Kind kind = Kind::failed;
    QString details; ///< The service's words, in one line; may be empty.

    friend bool operator==(const UpdateProblem&, const UpdateProblem&) = default;
};

/// A newer package of this program.
struct AvailableUpdate {
    QString version;
    QString packageId; ///< The service's name for it.

    friend bool operator==(const AvailableUpdate&, const AvailableUpdate&) = default;
};

/// Newer versions of this program, as the system's package service knows them. Main thread;
/// never blocks. `done` is called once, later, and never if the handle was dropped.
class PackageUpdates {
public:
    /// Nothing if there is no newer one.
    using Checked = tl::expected<std::optional<AvailableUpdate>, UpdateProblem>;
    using Installed = tl::expected<void, UpdateProblem>;

    virtual ~PackageUpdates() = default;

    /// Asks the repositories themselves, over the network.
    [[nodiscard]] virtual Handle check(std::function<void(Checked)> done) = 0;

    /// The system may ask the user for permission. `progress` gets percentages while they are
    /// known. Dropping the handle does not stop the installation.
    [[nodiscard]] virtual Handle install(const AvailableUpdate& update,
                                         std::function<void(std::optional<int>)> progress,
                                         std::function<void(Installed)> done) = 0;
};

} // namespace ravelo
