#include "ui/lists/Deleting.h"

#include "store/Deleted.h"
#include "ui/controls/Toast.h"

#include <QPointer>

namespace ravelo {

using namespace Qt::StringLiterals;

struct Deleting::Offered {
    std::shared_ptr<Deleted> records = std::make_shared<Deleted>();
    qsizetype clips = 0;
    qsizetype cleared = 0; ///< Clips, too.
    qsizetype snippets = 0;
    qsizetype restored = 0;

    [[nodiscard]] qsizetype count() const { return clips + cleared + snippets; }
};

Deleting::Deleting(Store& store, Toast& toast, const QLocale& locale)
    : store_(store), toast_(toast), locale_(locale) {}

void Deleting::deleteClip(const QUuid& id) {
    const qsizetype before = store_.clips().size();
    const auto what = offered();
    store_.deleteClip(id, what->records);
    what->clips += before - store_.clips().size();
    offer(what);
}

void Deleting::clearClips() {
    const qsizetype before = store_.clips().size();
    const auto what = offered();
    store_.clearClips(what->records);
    what->cleared += before - store_.clips().size();
    offer(what);
}

void Deleting::removeSnippet(const QUuid& id) {
    const qsizetype before = store_.snippets().size();
    const auto what = offered();
    store_.removeSnippet(id, what->records);
    what->snippets += before - store_.snippets().size();
    offer(what);
}

std::shared_ptr<Deleting::Offered> Deleting::offered() {
    const auto still = last_.lock();
    return still ? still : std::make_shared<Offered>();
}

void Deleting::offer(const std::shared_ptr<Offered>& what) {
    if (what->count() > 0) {
        last_ = what;
        toast_.offer(message(*what), tr("Undo"), [this, what] { undo(what); });
    }
}

void Deleting::undo(const std::shared_ptr<Offered>& what) {
    last_.reset(); // Later deletions get an undo of their own.
    store_.restore(what->records, [self = QPointer(this), what](const Store::Restored& restored) {
        if (self) {
            self->report(what, restored);
        }
    });
}

void Deleting::report(const std::shared_ptr<Offered>& what, const Store::Restored& restored) {
    what->restored += restored.count;
    if (what->restored == what->count()) {
        toast_.flash(tr("Restored \u2713"));
        return;
    }
    const QString problem = what->restored == 0
                                ? tr("Could not undo: %1").arg(restored.problem)
                                : tr("Restored %1 of %2: %3")
                                      .arg(locale_.toString(what->restored),
                                           locale_.toString(what->count()), restored.problem);
    if (restored.canRetry) {
        toast_.offer(problem, tr("Try again"), [this, what] { undo(what); });
    } else {
        toast_.flash(problem);
    }
}

QString Deleting::message(const Offered& what) const {
    const QString count = locale_.toString(what.count());
    if (what.cleared == what.count()) {
        return what.cleared == 1 ? tr("History cleared \u00b7 1 clip")
                                 : tr("History cleared \u00b7 %1 clips").arg(count);
    }
    if (what.count() == 1) {
        return what.snippets == 1 ? tr("Snippet deleted") : tr("Deleted");
    }
    return tr("%1 deleted").arg(count);
}

} // namespace ravelo
