#include "store/Store.h"

#include "base/FileUrl.h"
#include "base/Files.h"
#include "base/Scheduler.h"
#include "base/Uuid.h"
#include "platform/Pasteboard.h"
#include "store/history/ClipHistory.h"
#include "store/images/CopiedFile.h"
#include "store/images/ImageFiles.h"
#include "store/images/PasteboardImage.h"
#include "store/images/SnippetImage.h"
#include "vault/Vault.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QString newImageFileName() {
    return uuidText(QUuid::createUuid()) + u".png"_s;
}

StoreServices withVault(StoreServices services, const QString& folder) {
    if (!services.vault) {
        services.vault = std::make_shared<Vault>(folder);
    }
    return services;
}

} // namespace

QUrl Store::folderOf(const QUrl& file) {
    const QByteArray path = filePath(file);
    return fileUrl(path.first(std::max<qsizetype>(path.lastIndexOf('/'), 1)));
}

Store::Store(const QString& folder, Services services)
    : services_(withVault(services, QDir(folder).absolutePath())),
      locked_(services_.vault->state() == Vault::State::locked),
      folder_(QDir(folder).absolutePath()),
      saver_(services.scheduler, services.worker, services_.vault, [this] { return contents(); }),
      forgetting_(services.scheduler, [this](const QList<QUuid>& over) { forget(over); }),
      captures_({services.scheduler, services.worker, services.copiedFiles, services.conversions}),
      look_(services.jobs, services.scheduler),
      countdown_(services.scheduler, services.sound),
      reminders_(Reminders::load(services.preferences)) {
    connect(&saver_, &StoreSaver::ended, this, &Store::saveEndedWith);
    connect(&countdown_, &Countdown::ended, this, &Store::timerEnded);
    connect(&countdown_, &Countdown::changed, this, [this] { notify(&Store::timerChanged); });
    makePrivateFolder(folder_);
    makePrivateFolder(clipsDir());
    load();
}

Store::~Store() = default;

QString Store::fileURL() const {
    return folder_ + u"/store.json"_s;
}

QString Store::clipsDir() const {
    return clipsFolder(folder_);
}

QString Store::clipsFolder(const QString& folder) {
    return QDir(folder).absolutePath() + u"/clips"_s;
}

QString Store::imagePath(const QString& imageFileName) const {
    // Only the name counts, whatever the file says: nothing outside the folder is ever shown or
    // deleted.
    return clipsDir() + u'/' + QFileInfo(imageFileName).fileName();
}

const QList<ClipItem>& Store::clips() const {
    return data_.clips;
}

const QList<Snippet>& Store::snippets() const {
    return data_.snippets;
}

const Shelf& Store::shelf() const {
    return shelf_;
}

QString Store::note() const {
    return data_.note;
}

void Store::setNote(const QString& note) {
    if (note != data_.note) {
        data_.note = note;
        Q_EMIT noteChanged();
    }
}

void Store::setNote2(const QString& note) {
    if (note != data_.note2) {
        data_.note2 = note;
        Q_EMIT noteChanged();
    }
}

void Store::setDrawing(const QList<Stroke>& drawing) {
    if (drawing != data_.drawing) {
        data_.drawing = drawing;
        Q_EMIT drawingChanged();
    }
}

void Store::dropGone(const FileLook::Found& found) {
    if (!parkedMeanwhile_) { // Locked meanwhile.
        return;
    }
    QSet<QUrl> gone;
    for (const auto& [file, presence] : found.asKeyValueRange()) {
        // Without its folder, it may be on a medium that is not mounted yet.
        if (presence == Presence::gone &&
            found.value(folderOf(file), Presence::unknown) == Presence::there &&
            !parkedMeanwhile_->contains(file)) {
            gone.insert(file);
        }
    }
    parkedMeanwhile_.reset();
    setShelf(shelf_.removed(gone));
}

void Store::setHistoryRules(const HistoryRules& rules) {
    rules_ = rules;
    trimLater();
    if (rules.order == HistoryRules::Order::newerFirst) {
        apply(ClipHistory::newerFirst(data_.clips));
    }
}

void Store::addClip(const QString& text, Kept kept, Judging judging) {
    if (erased_) {
        return;
    }
    const auto verdict = std::make_shared<Verdict>();
    std::function<void(const CopiedContents&)> judgeLater;
    if (judging.judge && judging.takes == Judging::Takes::longer) {
        judgeLater = [verdict, text, judge = std::move(judging.judge)](const CopiedContents&) {
            *verdict = judge(text);
        };
    } else if (judging.judge) {
        *verdict = judging.judge(text);
    }
    auto add = [this, text, verdict, kept = std::move(kept), judged = std::move(judging.judged),
                now = services_.scheduler.now()] {
        const bool written = std::ranges::any_of(data_.clips, [&](const ClipItem& clip) {
            return clip.secret.isEmpty() && clip.kind != ClipKind::image && clip.text == text;
        });
        if (verdict->kept && written) {
            verdict->secret.clear();
        }
        if (judged) {
            judged(*verdict);
        }
        if (verdict->kept) {
            apply(ClipHistory::added(data_.clips, text, now, rules_, verdict->secret));
            reportKept(text, kept);
            trim();
        }
    };
    if (captures_.isEmpty() && !judgeLater) {
        add();
    } else {
        captures_.add({}, {std::move(judgeLater), {}, unlessCleared(std::move(add), [] {})});
    }
}

void Store::addImageClip(const PasteboardSnapshot& contents, Kept kept, Refused refused) {
    struct Outcome {
        KeptImage image;
        bool decoded = false;
        Result<void> written;
        qint64 size = 0;
    };

    if (erased_) {
        return;
    }
    const QString name = newImageFileName();
    lentImages_.insert(name);
    const auto outcome = std::make_shared<Outcome>();
    auto convert = [contents, outcome, decoder = services_.decoder](const CopiedContents& file) {
        outcome->image = imageToKeep(contents, file, *decoder);
    };
    auto write = [vault = services_.vault, path = imagePath(name), outcome,
                  mayWrite = services_.mayWrite] {
        outcome->decoded = !outcome->image.png.isEmpty();
        outcome->size = outcome->image.png.size();
        outcome->written = writeImage(*vault, path, outcome->image.png, mayWrite);
        outcome->image.png.clear();
    };
    auto add = [this, name, outcome, kept = std::move(kept), refused = std::move(refused),
                now = services_.scheduler.now()] {
        lentImages_.remove(name);
        if (outcome->written) {
            fileSizes_.insert(name, outcome->size);
            ClipChange change = ClipHistory::imageAdded(data_.clips, name, now, rules_);
            const QUuid id = change.clips.front().id;
            apply(std::move(change));
            if (kept) {
                kept(id);
            }
            trim();
            return;
        }
        if (outcome->decoded) {
            Q_EMIT imageNotKept(outcome->written.error().message);
        }
        if (refused) {
            const auto& tooLarge = outcome->image.tooLarge;
            refused({tooLarge           ? Refusal::Cause::tooLarge
                     : outcome->decoded ? Refusal::Cause::unwritable
                                        : Refusal::Cause::undecodable,
                     tooLarge});
        }
    };
    captures_.add(copiedFile(contents),
                  {std::move(convert), std::move(write),
                   unlessCleared(std::move(add), [this, name] { removeImages({name}); })});
}

/// The newest unpinned clip holds the text, unless it is an image, which has a text, too.
void Store::reportKept(const QString& text, const Kept& kept) const {
    const auto newest = std::ranges::find(data_.clips, false, &ClipItem::pinned);
    if (kept && newest != data_.clips.cend() && newest->text == text &&
        newest->kind != ClipKind::image) {
        kept(newest->id);
    }
}

/// `add`, or `discard` if the history was cleared meanwhile.
std::function<void()> Store::unlessCleared(std::function<void()> add,
                                           std::function<void()> discard) {
    return [store = QPointer(this), clearings = clearings_, add = std::move(add),
            discard = std::move(discard)] {
        if (store) {
            store->clearings_ == clearings ? add() : discard();
        }
    };
}

void Store::apply(std::optional<ClipChange> change) {
    if (!change) {
        return;
    }
    const QList<ClipItem> before = std::exchange(data_.clips, std::move(change->clips));
    forgetting_.follow(data_.clips);
    QStringList gone = change->orphanedImages + goneForms(before);
    if (rules_.imageBytes > 0 || rules_.keepFor > 0) { // Those that texts have pushed out count.
        gone += goneImages(before);
    }
    removeImages(gone);
    save();
    Q_EMIT clipsChanged();
}

void Store::togglePin(const QUuid& id) {
    apply(ClipHistory::pinToggled(data_.clips, id, rules_.order));
}

void Store::updateSnippet(const Snippet& snippet) {
    const auto found = std::ranges::find(data_.snippets, snippet.id, &Snippet::id);
    if (found != data_.snippets.end()) {
        *found = snippet;
        save();
        Q_EMIT snippetsChanged();
    }
}

void Store::addSnippet(const Snippet& snippet) {
    data_.snippets.append(snippet);
    save();
    Q_EMIT snippetsChanged();
}

void Store::addToShelf(const QList<QUrl>& urls) {
    if (parkedMeanwhile_) { // They may exist again.
        parkedMeanwhile_->unite({urls.begin(), urls.end()});
    }
    if (auto shelf = shelf_.added(urls)) {
        setShelf(std::move(*shelf));
    }
}

void Store::removeFromShelf(const QUrl& url) {
    setShelf(shelf_.removed({url}));
}

void Store::removeFromShelf(const QList<QUrl>& urls) {
    setShelf(shelf_.removed({urls.begin(), urls.end()}));
}

void Store::restoreShelf(const Shelf& before) {
    setShelf(shelf_.restored(before));
}

void Store::toggleSelectStack(const QList<QUrl>& stack) {
    setShelf(shelf_.stackToggled(stack));
}

void Store::clearSelection() {
    setShelf({shelf_.stacks, {}});
}

void Store::setShelf(Shelf shelf) {
    if (shelf == shelf_) {
        return;
    }
    const Shelf before = std::exchange(shelf_, std::move(shelf));
    if (before.stacks != shelf_.stacks) {
        save();
    }
    Q_EMIT shelfChanged();
}

void Store::requestShelf() {
    ++shelfRequestTick_;
    Q_EMIT shelfRequestTickChanged();
}

Handle Store::saveClipboardImageForSnippet(std::function<void(QString)> done) {
    const QString name = newImageFileName();
    return saveSnippetImage(services_, imagePath(name),
                            [this, name, done = std::move(done)](bool saved) {
                                if (saved) {
                                    lentImages_.insert(name);
                                }
                                done(saved ? name : QString());
                            });
}

void Store::startTimer(const QString& label, double minutes) {
    countdown_.start(label, minutes);
}

void Store::stopTimer() {
    countdown_.stop();
}

double Store::timerRemaining() const {
    return countdown_.remaining().count();
}

void Store::setReminderOpen(bool open) {
    reminders_.open = open;
    reminders_.keepOpen(services_.preferences);
    notify(&Store::remindersChanged);
}

void Store::setReminders(const QStringList& texts) {
    reminders_.texts = texts;
    reminders_.keepTexts(services_.preferences);
    notify(&Store::remindersChanged);
}

void Store::notify(void (Store::*changed)()) {
    Q_EMIT(this->*changed)();
    if (onTimerChange) {
        onTimerChange();
    }
}

void Store::save() {
    saver_.save();
}

void Store::trim() {
    apply(ClipHistory::trimmed(data_.clips, services_.scheduler.now(), rules_, fileSizes_));
    trimForms();
    trimLater();
}

/// When the next clip becomes too old, but not at once and at least every hour, since the wall
/// clock may be set.
void Store::trimLater() {
    trimming_.reset();
    double oldest = std::numeric_limits<double>::infinity();
    for (const ClipItem& clip : data_.clips) {
        oldest = clip.pinned ? oldest : std::min(oldest, clip.date.sinceReference);
    }
    if (rules_.keepFor > 0 && std::isfinite(oldest)) {
        const double left = oldest + rules_.keepFor - services_.scheduler.now().sinceReference;
        trimming_ =
            services_.scheduler.after(Seconds(std::clamp(left, 60.0, 3600.0)), [this] { trim(); });
    }
}

void Store::flush() {
    captures_.handOver();
    saver_.flush();
}

} // namespace ravelo
