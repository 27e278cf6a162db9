#include "clipboard/ClipboardManager.h"

#include "base/Scheduler.h"
#include "clipboard/CapturePause.h"
#include "clipboard/FormRules.h"
#include "platform/DetachedJobs.h"
#include "store/Store.h"

#include <algorithm>
#include <utility>

namespace ravelo {

namespace {

constexpr Seconds pollInterval{0.5};

/// Password managers clear what they have copied, and some do not mark it.
bool mayBePassword(const ClipItem& clip) {
    constexpr qsizetype longest = 127;
    return clip.kind != ClipKind::image && clip.text.size() <= longest &&
           std::ranges::none_of(clip.text, [](QChar letter) { return letter.isSpace(); });
}

} // namespace

ClipboardManager::ClipboardManager(Store& store, Pasteboard& pasteboard, Scheduler& scheduler,
                                   DetachedJobs& jobs, CapturePause& pause)
    : store_(store),
      pasteboard_(pasteboard),
      scheduler_(scheduler),
      jobs_(jobs),
      reading_{store, jobs, scheduler},
      pause_(pause),
      lastChangeCount_(pasteboard.changeCount()) {}

void ClipboardManager::start() {
    notice_ = pasteboard_.onChange([this] { poll(); });
    if (pasteboard_.reportsChanges()) {
        poll(); // For what came before we listened.
    } else {
        timer_ = scheduler_.every(pollInterval, [this] { poll(); });
    }
    saveRequests_ = pasteboard_.onSaveRequest([this] {
        saveAsked_ = true;
        poll();
        answerSaveRequest();
    });
    connect(&store_, &Store::cleared, this, [this] {
        reads_.clear();
        readingForms_.reset();
        if (held_) {
            held_->clip = Clip::cleared;
        }
        offering_.reset();
        answerSaveRequest();
    });
}

void ClipboardManager::setRules(CaptureRules rules) {
    rules_ = std::move(rules);
    const bool needsNames =
        !rules_.programs.isEmpty() || rules_.programNames == CaptureRules::ProgramNames::kept;
    pasteboard_.setNaming(needsNames ? Pasteboard::Naming::on : Pasteboard::Naming::off);
}

void ClipboardManager::poll() {
    const qint64 count = pasteboard_.changeCount();
    if (count == lastChangeCount_) {
        return;
    }
    lastChangeCount_ = count;
    if (count == suppressUntilCount_) {
        return;
    }
    if (const auto lost = pasteboard_.orphaned()) {
        if (held_ && held_->changeCount == *lost) {
            held_->contents.ownerEnded = scheduler_.uptime();
        }
        offerAgain();
        return;
    }
    if (pause_.ignoresCopy()) {
        ignore();
        return;
    }
    // Earlier reads go on: an answer may already be on its way, and the pasteboard itself drops
    // reads whose owner has gone.
    read(count, {});
}

/// Not even its types are read.
void ClipboardManager::ignore() {
    ignoredLast_ = true;
    unwantedCount_ = lastChangeCount_;
    answerSaveRequest();
}

void ClipboardManager::read(qint64 count, const QStringList& useless) {
    const auto plan = [useless, programs = rules_.programs](const PasteboardSnapshot& snapshot) {
        return isOfProgram(snapshot.owner, programs) ? QString()
                                                     : nextCaptureType(snapshot, useless);
    };
    reads_[count] = pasteboard_.read(
        plan, [this, count, useless, seen = scheduler_.uptime()](const auto& snapshot) {
            finishRead(count, snapshot, useless, seen);
        });
}

void ClipboardManager::finishRead(qint64 count, const PasteboardSnapshot& snapshot,
                                  const QStringList& useless, Seconds seen) {
    // Contents newer than the count get a read of their own.
    if (snapshot.changeCount == count) {
        capture(snapshot, useless, seen);
    }
    reads_.erase(reads_.begin(), reads_.upper_bound(count));
    answerSaveRequest();
}

void ClipboardManager::capture(const PasteboardSnapshot& snapshot, const QStringList& useless,
                               Seconds seen) {
    const bool passedOnUnread =
        ignoredLast_ && snapshot.owner.kind == PasteboardOwner::Kind::manager;
    const bool unwanted =
        passedOnUnread || isOfProgram(snapshot.owner, rules_.programs) || isConcealed(snapshot);
    if (!snapshot.types.isEmpty()) { // Between an owner's end and the manager there may be nothing.
        ignoredLast_ = unwanted;
    }
    const auto key = unwanted ? std::nullopt : contentsKey(snapshot);
    if (!key) {
        unwantedCount_ = snapshot.changeCount;
        if (held_ && held_->changeCount == snapshot.changeCount) {
            refuse({}); // There was no other form.
        }
        return;
    }
    if (isPassedOn(snapshot, *key, seen)) {
        held_->changeCount = snapshot.changeCount;
        held_->contents.owner = snapshot.owner.id;
        held_->contents.ownerEnded.reset();
        offerAgain();
        return;
    }
    HeldContents contents{*key, snapshot.owner.id, seen};
    if (held_ && held_->changeCount == snapshot.changeCount) {
        contents = held_->contents; // Another owner is asked for the form that was read first.
    }
    readingForms_.reset();
    held_ = std::make_shared<Held>(
        Held{snapshot.changeCount, contents, isFromFile(snapshot) ? Source::file : Source::owner});
    if (const auto reason = tooLargeToKeep(snapshot)) {
        refuse(*reason);
    } else {
        keep(snapshot, useless);
    }
}

void ClipboardManager::refuse(const std::optional<TooLarge>& reason) {
    held_->clip = Clip::refused;
    if (reason) {
        Q_EMIT tooLarge(*reason);
    }
}

bool ClipboardManager::isPassedOn(const PasteboardSnapshot& snapshot, const ContentsKey& key,
                                  Seconds seen) const {
    if (!held_) {
        return false;
    }
    HeldContents before = held_->contents;
    if (const auto& end = snapshot.lastEnd; end && end->changeCount == held_->changeCount) {
        before.ownerEnded = seen - end->before; // The next owner came before we noticed.
    }
    const bool deleted = held_->clip == Clip::kept && !held_->id.isNull() && !find(held_->id);
    const auto wanted = deleted || held_->clip == Clip::cleared ? Wanted::no : Wanted::yes;
    return isHandOver(before, wanted, key, snapshot.owner, seen);
}

/// Several files are kept as such; a single one may be a picture.
void ClipboardManager::keep(const PasteboardSnapshot& snapshot, const QStringList& useless) {
    const QString text = capturedText(snapshot, textEnds_);
    const QString files = copiedFilesText(snapshot);
    if (!text.isEmpty() || files.contains(u'\n')) {
        keepText(text.isEmpty() ? files : text, originOf(snapshot));
    } else {
        keepImage(snapshot, useless);
    }
}

void ClipboardManager::keepText(const QString& text, const Origin& origin) {
    auto judged = whileHeld([this](Held& /*held*/, const Verdict& verdict) {
        if (!verdict.kept) {
            refuse({});
            answerSaveRequest();
        } else if (!verdict.secret.isEmpty()) {
            Q_EMIT secretKept(verdict.secret);
        }
    });
    store_.addClip(text, whileHeld([this, origin](Held& held, const QUuid& clip) {
                       kept(held, clip, origin);
                   }),
                   judging(std::move(judged)));
}

Judging ClipboardManager::judging(std::function<void(const Verdict&)> judged) const {
    return {[rules = rules_](const QString& copied) { return judge(rules, copied); },
            rules_.patterns.isEmpty() ? Judging::Takes::moment : Judging::Takes::longer,
            std::move(judged)};
}

void ClipboardManager::keepImage(const PasteboardSnapshot& snapshot, const QStringList& useless) {
    held_->clip = Clip::converting;
    const QString type = imageType(snapshot);
    const QStringList tried = useless + QStringList{type};
    const bool mayRetry = !type.isEmpty() && hasOtherForm(snapshot.types, tried);
    store_.addImageClip(
        snapshot, whileHeld([this, origin = originOf(snapshot)](Held& held, const QUuid& clip) {
            kept(held, clip, origin);
        }),
        whileHeld([this, mayRetry, tried, origin = originOf(snapshot),
                   file = copiedFilesText(snapshot)](Held& held, const Store::Refusal& refusal) {
            const bool undecodable = refusal.cause == Store::Refusal::Cause::undecodable;
            if (undecodable && mayRetry && held.changeCount == lastChangeCount_) {
                read(held.changeCount, tried);
            } else if (undecodable && !file.isEmpty()) {
                held.clip = Clip::pending;
                keepText(file, origin);
            } else {
                refuse(refusal.tooLarge);
                answerSaveRequest();
            }
        }));
}

ClipboardManager::Origin ClipboardManager::originOf(const PasteboardSnapshot& snapshot) const {
    return {keptName(rules_, snapshot.owner), std::ranges::any_of(snapshot.types, isKeptForm)};
}

void ClipboardManager::kept(Held& held, const QUuid& clip, const Origin& origin) {
    held.clip = Clip::kept;
    held.id = clip;
    const ClipItem* item = find(clip);
    const bool isPlain = item != nullptr && item->kind != ClipKind::image && item->secret.isEmpty();
    if (isPlain && origin.hasForms && held.changeCount == lastChangeCount_) {
        readForms(held, origin.program);
    } else {
        store_.setForms(clip, {origin.program});
    }
    answerSaveRequest();
    offerAgain(); // The owner may have ended while an image was being written.
}

/// Only now that the user's rules let the text pass. If another copy comes meanwhile, the text
/// alone is kept.
void ClipboardManager::readForms(const Held& held, const QString& program) {
    readingForms_ =
        pasteboard_.read(nextFormType, [this, program, clip = held.id,
                                        count = held.changeCount](const auto& snapshot) {
            readingForms_.reset();
            if (snapshot.changeCount == count) {
                judgeForms(clip, {program, capturedForms(snapshot)});
            } else {
                formsEnded();
            }
        });
}

void ClipboardManager::judgeForms(const QUuid& clip, const ClipForms& forms) {
    const ClipItem* item = find(clip);
    if (item == nullptr || forms.forms.isEmpty()) {
        store_.setForms(clip, forms);
        formsEnded();
        return;
    }
    const auto harmless = std::make_shared<bool>(false);
    readingForms_ =
        jobs_.run([rules = rules_, text = item->text, forms = forms.forms,
                   harmless] { *harmless = mayKeepForms(rules, text, forms); },
                  [this, clip, forms, harmless] {
                      readingForms_.reset();
                      store_.setForms(clip, *harmless ? forms : ClipForms{forms.program});
                      formsEnded();
                  });
}

void ClipboardManager::formsEnded() {
    answerSaveRequest();
    offerAgain();
}

/// As soon as it is certain whether there will be a clip, since the owner is not needed after that.
void ClipboardManager::answerSaveRequest() {
    // Files are never offered again, so what becomes of their contents need not be waited for.
    const bool known =
        held_ && held_->changeCount == lastChangeCount_ && held_->source == Source::owner;
    if (saveAsked_ && !reads_.contains(lastChangeCount_) && !(known && readingForms_) &&
        !(known && held_->clip == Clip::converting)) {
        saveAsked_ = false;
        const bool saved = known && (held_->clip == Clip::pending || held_->clip == Clip::kept);
        pasteboard_.answerSaveRequests(lastChangeCount_,
                                       saved ? SaveAnswer::saved : SaveAnswer::refused);
    }
}

/// Only what its owner took along, never anything copied earlier, and nothing if the user has
/// deleted the clip.
void ClipboardManager::offerAgain() {
    if (!isLost(held_.get())) {
        return;
    }
    const ClipItem* clip = find(held_->id);
    const bool mayBeCleared = pasteboard_.orphans() == Pasteboard::Orphans::orCleared;
    if (clip == nullptr || (mayBeCleared && mayBePassword(*clip))) {
        return;
    }
    const auto offer = [this, weak = std::weak_ptr(held_)](const Forms& forms) {
        const auto held = weak.lock();
        if (forms.isEmpty() || !isLost(held.get())) {
            return;
        }
        if (const auto count = pasteboard_.adopt(forms)) {
            held->changeCount = *count;
            held->contents.owner = 0;
            suppressOwnChange(*count);
        }
    };
    offering_ = reading_.clip(*clip, ClipReading::Files::left, offer);
}

/// It is gone with its owner, and we may offer it.
bool ClipboardManager::isLost(const Held* held) const {
    return held != nullptr && held->clip == Clip::kept && held->source != Source::file &&
           pasteboard_.orphaned() == held->changeCount;
}

/// Null if the user has deleted the clip.
const ClipItem* ClipboardManager::find(const QUuid& clip) const {
    const auto found = std::ranges::find(store_.clips(), clip, &ClipItem::id);
    return found == store_.clips().cend() ? nullptr : &*found;
}

} // namespace ravelo
