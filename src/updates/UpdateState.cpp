#include "updates/UpdateState.h"

#include <QCoreApplication>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Translation context of this file.
struct UpdateText {
    Q_DECLARE_TR_FUNCTIONS(ravelo::UpdateText)
};

using Phase = UpdateState::Phase;

UpdateMessage message(const UpdateProblem& problem) {
    switch (problem.kind) {
    case UpdateProblem::Kind::noService:
        return {UpdateText::tr("Cannot check for updates"),
                UpdateText::tr(
                    "PackageKit is not available. Update Ravelo with your package manager.")};
    case UpdateProblem::Kind::notFromRepository:
        return {UpdateText::tr("Ravelo was not installed from a repository"),
                UpdateText::tr(
                    "So the system does not know of newer versions. Install the newest package "
                    "over this one, or build it again.")};
    case UpdateProblem::Kind::notAllowed:
        return {UpdateText::tr("Not allowed"),
                UpdateText::tr("Permission was denied, or polkit, which "
                               "grants it, is not running. Update Ravelo with "
                               "your package manager.")};
    case UpdateProblem::Kind::failed:
        break;
    }
    return {UpdateText::tr("The update failed"), problem.details};
}

} // namespace

UpdateState UpdateState::checked(const PackageUpdates::Checked& found) const {
    if (!found) {
        return {Phase::problem, {}, {}, found.error()};
    }
    return *found ? UpdateState{Phase::available, **found, {}, {}}
                  : UpdateState{Phase::newest, {}, {}, {}};
}

UpdateState UpdateState::installed(const PackageUpdates::Installed& done) const {
    return done ? UpdateState{Phase::installed, update, {}, {}}
                : UpdateState{Phase::problem, update, {}, done.error()};
}

UpdateMessage message(const UpdateState& state, const QString& current) {
    const QString newer = u"Ravelo "_s + state.update.version;
    switch (state.phase) {
    case Phase::idle:
        break;
    case Phase::checking:
        return {UpdateText::tr("Checking for updates…"), {}};
    case Phase::newest:
        return {UpdateText::tr("Ravelo is up to date"),
                UpdateText::tr("You have Ravelo %1.").arg(current)};
    case Phase::available:
        return {UpdateText::tr("%1 is available").arg(newer),
                UpdateText::tr("You have %1.").arg(current)};
    case Phase::installing:
        return {UpdateText::tr("Installing %1…").arg(newer),
                state.percent ? QString::number(*state.percent) + u" %"_s : QString()};
    case Phase::installed:
        return {UpdateText::tr("%1 is installed").arg(newer),
                UpdateText::tr("Quit Ravelo and start it again to use it.")};
    case Phase::problem:
        return message(state.problem);
    }
    return {};
}

} // namespace ravelo
