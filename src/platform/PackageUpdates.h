#pragma once

#include "base/Handle.h"

#include <QString>

#include <tl/expected.hpp>

#include <functional>
#include <optional>

namespace ravelo {

struct UpdateProblem {
    enum class Kind {
        noService,         ///< Nobody here installs updates for programs.
        notFromRepository, ///< The program came without a place where newer ones would come from.
        notAllowed,        ///< By the system or by its user.
        failed,
    };

    Kind kind = Kind::failed;
    QString details; ///< As the service says it, in one line; may be empty.

    friend bool operator==(const UpdateProblem&, const UpdateProblem&) = default;
};

/// A newer package of this program.
struct AvailableUpdate {
    QString version;
    QString packageId; ///< As the service calls it.

    friend bool operator==(const AvailableUpdate&, const AvailableUpdate&) = default;
};

/// Newer versions of this program, as this system's package service knows them. Main thread;
/// nothing here waits. `done` is called once, later, and never where the handle was dropped.
class PackageUpdates {
public:
    /// Nothing where there is no newer one.
    using Checked = tl::expected<std::optional<AvailableUpdate>, UpdateProblem>;
    using Installed = tl::expected<void, UpdateProblem>;

    virtual ~PackageUpdates() = default;

    /// Asks the repositories themselves, over the network.
    [[nodiscard]] virtual Handle check(std::function<void(Checked)> done) = 0;

    /// The system may ask its user for leave. `progress` gets percents while they are known.
    /// Dropping the handle stops nothing.
    [[nodiscard]] virtual Handle install(const AvailableUpdate& update,
                                         std::function<void(std::optional<int>)> progress,
                                         std::function<void(Installed)> done) = 0;
};

} // namespace ravelo
