#include "updates/UpdateState.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Phase = UpdateState::Phase;

UpdateMessage message(const UpdateProblem& problem) {
    switch (problem.kind) {
    case UpdateProblem::Kind::noService:
        return {u"Cannot check for updates"_s,
                u"PackageKit is not available. Update Ravelo with your package manager."_s};
    case UpdateProblem::Kind::notFromRepository:
        return {
            u"Ravelo was not installed from a repository"_s,
            u"So the system does not know of newer versions. Install the newest package over this "
            "one, or build it again."_s};
    case UpdateProblem::Kind::notAllowed:
        return {u"Not allowed"_s, u"Permission was denied, or polkit, which grants it, is not "
                                  u"running. Update Ravelo with "
                                  "your package manager."_s};
    case UpdateProblem::Kind::failed:
        break;
    }
    return {u"The update failed"_s, problem.details};
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
        return {u"Checking for updates…"_s, {}};
    case Phase::newest:
        return {u"Ravelo is up to date"_s, u"You have Ravelo "_s + current + u'.'};
    case Phase::available:
        return {newer + u" is available"_s, u"You have "_s + current + u'.'};
    case Phase::installing:
        return {u"Installing "_s + newer + u'…',
                state.percent ? QString::number(*state.percent) + u" %"_s : QString()};
    case Phase::installed:
        return {newer + u" is installed"_s, u"Quit Ravelo and start it again to use it."_s};
    case Phase::problem:
        return message(state.problem);
    }
    return {};
}

} // namespace ravelo
