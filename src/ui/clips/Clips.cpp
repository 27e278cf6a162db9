#include "ui/clips/Clips.h"

#include "clipboard/ClipboardManager.h"
#include "panel/NotchController.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "ui/controls/Toast.h"
#include "ui/lists/Deleting.h"

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

Clips::Clips(Services services, const QLocale& locale)
    : Tab({u"Clipboard"_s, tr("Clipboard"), u"doc.on.clipboard"_s,
           QUrl(u"qrc:/Ravelo/Clips/ClipboardTab.qml"_s), Look::Page::eager, Look::Search::has}),
      services_(services),
      locale_(locale),
      list_(services.store, services.scheduler, locale),
      links_(services.opener, services.jobs, services.scheduler, services.toast),
      pasting_(services.pasting, services.settings, services.controller),
      preview_(services.store, services.decoder, locale),
      drag_(services.store, services.jobs, services.scheduler),
      ages_(services.scheduler, list_) {
    connect(&list_, &ClipListModel::searched, this, &Clips::searched);
    connect(&list_, &ClipListModel::detailsKnown, this, &Clips::detailsKnown);
    connect(&list_.selection(), &ClipSelection::changed, this, &Clips::selectedChanged);
    connect(&services_.settings, &AppSettings::joinWithChanged, this, &Clips::joinedChanged);
    connect(&editor_, &ClipEditor::copied, this, &Clips::copyEdited);
    connect(&editor_, &ClipEditor::tooLong, this,
            [this] { services_.toast.flash(tr("Too long to edit")); });
    connect(&drag_, &ClipDrag::draggingChanged, this,
            [this] { services_.controller.setDraggingOut(drag_.isDragging()); });
    connect(&services_.deleting, &Deleting::clipsRestored, this, &Clips::showRestored);
    connect(&links_, &LinkOpening::opened, &services_.controller, &NotchController::dismiss);
}

void Clips::begin() {
    ages_.start();
    editor_.resume();
}

void Clips::reset() {
    ages_.stop();
    search({});
    list_.dismissTooLarge();
    list_.selection().clear();
    links_.reset();
    pasting_.reset();
    editor_.putAside();
}

void Clips::showTooLarge(const TooLargeCopy& copy) {
    list_.setTooLarge(copy);
    if (services_.controller.isOpen()) {
        services_.toast.flash(tooLargeMessage(copy, locale_));
    }
}

void Clips::search(const QString& written) {
    list_.setSearch(written);
    services_.snippets.list()->setSearch(list_.searchedText());
}

void Clips::copy(int row) {
    copy(row, [] {});
}

void Clips::copy(int row, const std::function<void()>& done) {
    const ClipItem* clip = clipAt(row);
    if (clip == nullptr) {
        return;
    }
    if (clip->kind == ClipKind::image && clip->imageFileName.isEmpty()) {
        services_.controller.copy(clip->text);
        services_.toast.flashCopied();
        done();
    } else {
        services_.clipboard.copyClip(clip->id, [this, done](bool any) {
            if (any) {
                services_.toast.flashCopied();
                done();
            } else {
                services_.toast.flash(tr("The image cannot be read"));
            }
        });
    }
}

void Clips::copyAndClose(int row) {
    copy(row, [this] { close(); });
}

void Clips::pasteAndClose(int row) {
    if (const ClipItem* clip = clipAt(row)) {
        const auto kind =
            clip->secret.isEmpty() ? ClipPasting::Kind::ordinary : ClipPasting::Kind::secret;
        pasting_.run(clip->text, kind,
                     [this, id = clip->id](const auto& done) { copy(list_.rowOf(id), done); });
    }
}

void Clips::copyPlainAndClose(int row) {
    const ClipItem* clip = clipAt(row);
    if (clip != nullptr && clip->kind != ClipKind::image) {
        services_.controller.copy(clip->text);
        services_.toast.flashCopied();
        close();
    }
}

bool Clips::hasOtherForms(int row) const {
    const QUuid id = list_.idAt(row);
    return services_.store.hasForms(id) && !services_.store.detailsOf(id).forms.isEmpty();
}

void Clips::edit(int row) {
    if (const ClipItem* clip = clipAt(row)) {
        editor_.edit(*clip);
    }
}

void Clips::copyEdited(const QString& text) {
    services_.clipboard.copyNewText(text);
    services_.toast.flashCopied();
    close();
}

void Clips::showRestored(const QSet<QUuid>& ids) {
    int first = -1;
    for (const QUuid& id : ids) {
        const int row = list_.rowOf(id);
        first = row >= 0 && (first < 0 || row < first) ? row : first;
    }
    if (first >= 0) {
        Q_EMIT restored(first);
    }
}

void Clips::drag(int row, QQuickItem* from) {
    const ClipItem* clip = clipAt(row);
    if (clip == nullptr) {
        return;
    }
    const QStringList texts = selectedTexts(Secrets::leftOut); // They never leave by a drag.
    if (texts.size() > 1 && list_.selection().orderOf(clip->id) > 0) {
        drag_.start(joined(texts), *from);
    } else {
        drag_.start(*clip, *from);
    }
}

void Clips::look(int row) {
    if (const ClipItem* clip = clipAt(row)) {
        links_.look(*clip);
        services_.store.lookUpDetails(clip->id);
    }
}

void Clips::close() {
    services_.controller.dismiss();
}

void Clips::toggleSelected(int row) {
    if (clipAt(row) != nullptr) {
        list_.selection().toggle(list_.idAt(row));
    }
}

void Clips::selectTo(int row, int current) {
    ClipSelection& selection = list_.selection();
    const int begun = list_.rowOf(selection.anchor());
    const int from = begun >= 0 ? begun : current;
    selection.choose(list_.idAt(from), list_.idsBetween(from, row));
}

void Clips::selectAll() {
    list_.selection().choose(list_.idAt(0), list_.idsBetween(0, list_.count() - 1));
}

void Clips::clearSelection() {
    list_.selection().clear();
}

/// Of the chosen clips that are no pictures.
QStringList Clips::selectedTexts(Secrets secrets) const {
    QStringList texts;
    for (const QUuid& id : list_.selection().ids()) {
        const ClipItem* clip = clipOf(id);
        if (clip != nullptr && clip->kind != ClipKind::image &&
            (secrets == Secrets::included || clip->secret.isEmpty())) {
            texts.append(clip->text);
        }
    }
    return texts;
}

QString Clips::joined(const QStringList& texts) const {
    const QString& how = services_.settings.joinWith();
    return texts.join(how == u"space"     ? u" "_s
                      : how == u"comma"   ? u", "_s
                      : how == u"nothing" ? u""_s
                                          : u"\n"_s);
}

QString Clips::joined() const {
    const QString& how = services_.settings.joinWith();
    return how == u"space"     ? tr("joined by spaces, in this order")
           : how == u"comma"   ? tr("joined by commas, in this order")
           : how == u"nothing" ? tr("joined by nothing, in this order")
                               : tr("joined by line breaks, in this order");
}

void Clips::pasteSelectedAndClose() {
    const QStringList texts = selectedTexts();
    if (texts.isEmpty()) {
        copySelected();
    } else {
        const bool hasSecret = std::ranges::any_of(list_.selection().ids(), [this](const auto& id) {
            const ClipItem* clip = clipOf(id);
            return clip != nullptr && !clip->secret.isEmpty();
        });
        pasting_.run(joined(texts),
                     hasSecret ? ClipPasting::Kind::secret : ClipPasting::Kind::ordinary,
                     [this](const auto& done) {
                         copySelected();
                         done();
                     });
    }
}

void Clips::copySelected() {
    const QStringList texts = selectedTexts();
    if (texts.isEmpty()) {
        services_.toast.flash(tr("Pictures cannot be joined"));
        return;
    }
    services_.controller.copy(joined(texts));
    const bool all = texts.size() == list_.selection().ids().size();
    services_.toast.flash((all ? tr("Copied %1 \u2713") : tr("Copied %1 \u2713 Pictures left out"))
                              .arg(locale_.toString(texts.size())));
}

void Clips::removeSelected() {
    services_.deleting.run([this, ids = list_.selection().ids()](const auto& records) {
        return removed(
            [&] { services_.store.deleteClips(QSet<QUuid>(ids.begin(), ids.end()), records); });
    });
}

void Clips::openLink(int row) {
    if (const ClipItem* clip = clipAt(row)) {
        links_.open(*clip);
    }
}

void Clips::togglePin(int row) {
    services_.store.togglePin(list_.idAt(row));
}

QString Clips::revealed(int row) const {
    constexpr qsizetype longest = 1000; // Wider than any panel.
    const ClipItem* clip = clipAt(row);
    return clip && !clip->secret.isEmpty() ? clip->text.left(longest).simplified() : QString();
}

void Clips::keepSecret(int row) {
    services_.store.keepSecret(list_.idAt(row));
}

void Clips::forgetSecret(int row) {
    if (list_.isSecret(row)) {
        services_.store.deleteClip(list_.idAt(row));
    }
}

void Clips::remove(int row) {
    if (row == list_.tooLargeRow()) {
        list_.dismissTooLarge();
    } else {
        services_.deleting.run([this, id = list_.idAt(row)](const auto& records) {
            return removed([&] { services_.store.deleteClip(id, records); });
        });
    }
}

void Clips::clear() {
    services_.deleting.run(
        [this](const auto& records) {
            return removed([&] { services_.store.clearClips(records); });
        },
        {tr("History cleared \u00b7 1 clip"), tr("History cleared \u00b7 %1 clips")});
}

/// How many clips `remove` would delete.
qsizetype Clips::removed(const std::function<void()>& remove) const {
    const qsizetype before = services_.store.clips().size();
    remove();
    return before - services_.store.clips().size();
}

const ClipItem* Clips::clipOf(const QUuid& id) const {
    const auto& clips = services_.store.clips();
    const auto found = std::ranges::find(clips, id, &ClipItem::id);
    return found == clips.end() ? nullptr : &*found;
}

} // namespace ravelo
