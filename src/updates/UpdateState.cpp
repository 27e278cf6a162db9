#include "updates/UpdateState.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Phase = UpdateState::Phase;

UpdateMessage message(const UpdateProblem& problem) {
    switch (problem.kind) {
    case UpdateProblem::Kind::noService:
        return {
            u"Updates cannot be looked up here"_s,
            u"PackageKit does not run on this system. Update Ravelo with your package manager."_s};
    case UpdateProblem::Kind::notFromRepository:
        return {
            u"Ravelo does not come from a repository"_s,
            u"So nobody here knows of newer versions. Install the newest package over this one, or "
            "build it anew."_s};
    case UpdateProblem::Kind::notAllowed:
        return {
            u"The system does not allow it"_s,
            u"No permission was given, or no service that gives it (polkit) runs. Update Ravelo "
            "with your package manager."_s};
    case UpdateProblem::Kind::failed:
        break;
    }
    return {u"That did not work"_s, problem.details};
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
        return {u"Looking for updates…"_s, {}};
    case Phase::newest:
        return {u"This is the newest version"_s, u"Ravelo "_s + current};
    case Phase::available:
        return {newer + u" is there"_s, u"You have "_s + current + u'.'};
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
