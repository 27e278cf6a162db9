#include "ui/PanelFeatures.h"

#include "panel/NotchController.h"
#include "ui/notes/Notes.h"

namespace ravelo {

PanelFeatures::PanelFeatures(const Services& services, const QLocale& locale,
                             const QQuickWindow& window, QQmlEngine& engine)
    : typing(services.pasteboard, engine),
      vault(services.encryption, engine),
      toast(services.scheduler),
      deleting(services.store, toast, locale),
      snippets({services.store, services.controller, services.clipboard, toast, deleting}, locale),
      focus(services.store, services.preferences, services.scheduler),
      usage({services.usage, services.controller, services.settings, services.scheduler}, locale),
      actions(services.nightShift, services.shutDown),
      pausing({services.pause, services.scheduler, toast}, locale),
      tabs(services.settings),
      state(services.controller, services.settings, services.scheduler) {
    // From left to right.
    clips = &tabs.add<Clips>(Clips::Services{services.store, services.controller,
                                             services.clipboard, services.opener, services.jobs,
                                             services.scheduler, toast, deleting, snippets,
                                             services.decoder, services.settings, services.pasting},
                             locale);
    tabs.add<Notes>(
        Sketch::Services{services.store, services.controller, services.clipboard, toast});
    shelf = &tabs.add<ShelfFiles>(
        ShelfFiles::Services{services.store, services.controller, services.clipboard,
                             services.opener, services.scheduler, services.jobs, services.received,
                             services.nearby, toast, services.icons, services.decoder},
        locale);
    QObject::connect(&focus, &Focus::minutesRefused, &toast,
                     [this] { toast.flash(Focus::tr("Minutes are a whole number from 1")); });
    followTyping(services.controller, window);
    followState();
}

void PanelFeatures::forget() {
    toast.reset(); // It may offer to undo a deletion.
    clips->editor()->discard();
    snippets.editor()->cancel();
}

void PanelFeatures::followTyping(NotchController& controller, const QQuickWindow& window) {
    typing.setUndo(window, toast);
    QObject::connect(&typing, &Typing::copied, &controller, &NotchController::copy);
    QObject::connect(&typing, &Typing::keyboardWanted, &controller,
                     [&controller, &window](const QQuickWindow* wanted) {
                         if (wanted == &window) {
                             controller.typeFocus();
                         }
                     });
}

void PanelFeatures::followState() {
    QObject::connect(&state, &PanelState::opened, &tabs, &Tabs::begin);
    QObject::connect(&state, &PanelState::opened, &snippets, &Snippets::begin);
    QObject::connect(&state, &PanelState::opened, &usage, &Usage::refresh);
    QObject::connect(&state, &PanelState::opened, &pausing, [this] { pausing.setShown(true); });
    QObject::connect(&state, &PanelState::closed, &pausing, [this] { pausing.setShown(false); });
    QObject::connect(&state, &PanelState::closed, &toast, &Toast::reset);
    QObject::connect(&state, &PanelState::closed, &tabs, &Tabs::reset);
    QObject::connect(&state, &PanelState::closed, &vault, &VaultView::reset);
    QObject::connect(&state, &PanelState::closed, &snippets, &Snippets::reset);
    QObject::connect(&state, &PanelState::closed, &focus, &Focus::reload);
    state.start();
}

} // namespace ravelo
