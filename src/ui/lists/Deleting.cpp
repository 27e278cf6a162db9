#include "ui/lists/Deleting.h"

#include "store/history/Deleted.h"
#include "ui/controls/Toast.h"

#include <QPointer>

namespace ravelo {

struct Deleting::Offered {
    std::shared_ptr<Deleted> records = std::make_shared<Deleted>();
    Message message;
    qsizetype count = 0;
    qsizetype restored = 0;
    QSet<QUuid> clips; ///< Those of the records that are clips.
};

namespace {

QSet<QUuid> clipIds(const Store& store) {
    QSet<QUuid> ids;
    for (const ClipItem& clip : store.clips()) {
        ids.insert(clip.id);
    }
    return ids;
}

} // namespace

Deleting::Deleting(Store& store, Toast& toast, const QLocale& locale)
    : store_(store), toast_(toast), locale_(locale) {}

void Deleting::run(const Remove& remove) {
    run(remove, {tr("Deleted"), tr("%1 deleted")});
}

void Deleting::run(const Remove& remove, const Message& message) {
    auto what = last_.lock();
    if (!what) {
        what = std::make_shared<Offered>();
    }
    const QSet<QUuid> before = clipIds(store_);
    const qsizetype removed = remove(what->records);
    if (removed == 0) {
        return;
    }
    const bool mixed = what->count > 0 && what->message != message;
    what->message = mixed ? Message{{}, tr("%1 deleted")} : message;
    what->count += removed;
    what->clips += before - clipIds(store_);
    last_ = what;
    toast_.offer(what->count == 1 ? what->message.one
                                  : what->message.many.arg(locale_.toString(what->count)),
                 tr("Undo"), [this, what] { undo(what); });
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
    if (restored.count > 0) {
        Q_EMIT clipsRestored(what->clips);
    }
    if (what->restored == what->count) {
        toast_.flash(tr("Restored \u2713"));
        return;
    }
    const QString problem = what->restored == 0
                                ? tr("Could not undo: %1").arg(restored.problem)
                                : tr("Restored %1 of %2: %3")
                                      .arg(locale_.toString(what->restored),
                                           locale_.toString(what->count), restored.problem);
    if (restored.canRetry) {
        toast_.offer(problem, tr("Try again"), [this, what] { undo(what); });
    } else {
        toast_.flash(problem);
    }
}

} // namespace ravelo
