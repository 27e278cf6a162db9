// How the store is read, locked, unlocked and erased.

#include "base/Scheduler.h"
#include "platform/Preferences.h"
#include "platform/Worker.h"
#include "store/Seeds.h"
#include "store/Store.h"
#include "vault/Conversion.h"
#include "vault/Vault.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

void Store::load() {
    if (locked_) {
        saver_.setFile(newWaitingFile(*services_.vault), OwnFile::Contents::ours,
                       services_.mayWrite);
        sizesKnown_ = true; // There is nothing yet that they could be of.
        return;
    }
    begin(readStore(*services_.vault, fileURL()));
}

/// Later saves go to the store file.
void Store::begin(ReadStore stored) {
    using Kind = ReadStore::Kind;
    const bool wasRead = stored.kind == Kind::read;
    if (stored.kind == Kind::newer) {
        auto refuse = []() -> Result<void> {
            return failure(QCoreApplication::translate(
                "ravelo::Store", "what is stored was written by a newer Ravelo"));
        };
        saver_.setFile(fileURL(), OwnFile::Contents::ours, refuse);
    } else {
        saver_.setFile(fileURL(), wasRead ? OwnFile::Contents::ours : OwnFile::Contents::unreadable,
                       services_.mayWrite);
    }
    details_.clear(); // They could not be read while it was locked.
    sizesKnown_ = !wasRead && stored.waiting.isEmpty();
    adopt(std::move(stored));
    addSeeds();
    if (!wasRead) {
        return;
    }
    save();
    if (!shelf_.stacks.isEmpty()) {
        parkedMeanwhile_.emplace();
        QSet<QUrl> asked;
        for (const QUrl& file : shelf_.files()) {
            asked << file << folderOf(file);
        }
        look_.look(asked.values(), [this](const FileLook::Found& found) { dropGone(found); });
    }
    measureFiles(
        [folder = folder_, named = fileNames(data_), now = services_.scheduler.now(),
         mayWrite = services_.mayWrite] { removeOrphanedImages(folder, named, now, mayWrite); });
}

/// What is here came after what was stored.
void Store::adopt(ReadStore stored) {
    QList<StoreContents> later = std::move(stored.waiting);
    later.append(contents());
    data_ = std::move(stored.store.data);
    Shelf shelf{std::move(stored.store.shelf), {}};
    QList<ClipItem> all = data_.clips;
    HistoryRules rules = rules_; // The limit may not be known yet, if the preferences were lost.
    rules.limit = std::max(rules.limit,
                           int(std::ranges::count(std::as_const(all), false, &ClipItem::pinned)));
    for (const StoreContents& one : later) {
        if (!one.data.clips.isEmpty()) {
            all += one.data.clips;
            data_.clips = ClipHistory::merged(std::move(data_.clips), one.data.clips, rules).clips;
        }
        for (const QList<QUrl>& stack : one.shelf) {
            shelf = shelf.added(stack).value_or(shelf);
        }
    }
    removeImages(goneForms(all) + goneImages(all));
    shelf_ = std::move(shelf);
    waitingFiles_ += stored.waitingFiles;
}

void Store::addSeeds() {
    if (data_.snippets.isEmpty()) {
        data_.snippets = seedSnippets();
    }
    addLinkSnippetsIfNeeded();
}

void Store::addLinkSnippetsIfNeeded() {
    const QString key = u"seededSiteLinksV1"_s;
    if (services_.preferences.value(key).isUndefined()) {
        services_.preferences.set(key, true);
        data_.snippets.append(linkSnippets());
        save();
    }
}

void Store::announceAll() {
    Q_EMIT lockedChanged();
    Q_EMIT clipsChanged();
    Q_EMIT snippetsChanged();
    Q_EMIT noteChanged();
    Q_EMIT drawingChanged();
    Q_EMIT shelfChanged();
}

void Store::unlock() {
    if (!locked_ || opening_) {
        return;
    }
    opening_ = true;
    saver_.saveNow(); // What came meanwhile is read again, from its file.
    const auto stored = std::make_shared<ReadStore>();
    services_.worker.run(
        [vault = services_.vault, path = fileURL(), stored] { *stored = readStore(*vault, path); },
        [store = QPointer(this), stored] {
            if (!store) {
                return;
            }
            store->opening_ = false;
            if (!store->erased_) { // Meanwhile.
                store->locked_ = false;
                store->begin(std::move(*stored));
                store->saver_.saveNow();
                store->announceAll();
            }
        });
}

void Store::saveEndedWith(const SaveOutcome& outcome) {
    const bool saved = outcome.kind == SaveOutcome::Kind::saved;
    if (saved && !locked_ && !waitingFiles_.isEmpty()) {
        services_.worker.run(
            [files = std::exchange(waitingFiles_, {}), mayWrite = services_.mayWrite] {
                (void)ravelo::removeImages(files, mayWrite);
            });
    }
    lockProblem_ = dropped_ ? outcome.reason : QString();
    if (saved && dropped_ && saver_.isSaved()) {
        dropAll();
    }
    Q_EMIT saveEnded(outcome);
}

void Store::lock(std::function<void()> dropped) {
    if (!locked_ && !opening_) {
        dropped_ = std::move(dropped);
        lockProblem_.clear();
        if (dropped_) {
            saver_.saveNow();
        }
    }
}

void Store::dropData() {
    data_ = {};
    shelf_ = {};
    details_.clear();
    lookingUp_.reset();
    lookUpNext_.reset();
    fileSizes_.clear();
    ++measurings_;
    sizesKnown_ = true;
}

void Store::dropAll() {
    locked_ = true;
    dropData();
    parkedMeanwhile_.reset();
    trimming_.reset();
    saver_.stop();
    saver_.setFile(newWaitingFile(*services_.vault), OwnFile::Contents::ours, services_.mayWrite);
    std::exchange(dropped_, nullptr)();
    announceAll();
}

void Store::erase(std::function<void(const Result<void>&)> done) {
    erased_ = true;
    ++clearings_;
    captures_.drop();
    saver_.stop();
    trimming_.reset();
    dropData();
    Q_EMIT cleared();
    const auto outcome = std::make_shared<Result<void>>();
    services_.worker.run(
        [folder = folder_, vault = services_.vault, outcome, mayWrite = services_.mayWrite] {
            vault->refuseWrites();
            *outcome = eraseFiles(folder, mayWrite);
        },
        [outcome, done = std::move(done)] { done(*outcome); });
    announceAll();
}

void Store::resume() {
    if (!std::exchange(erased_, false)) {
        return;
    }
    Vault& vault = *services_.vault;
    vault.admitWrites();
    if (!QFileInfo::exists(vault.keyPath())) { // What is saved now could not be read without it.
        vault.look();
    }
    locked_ = vault.state() == Vault::State::locked;
    load();
    announceAll();
}

} // namespace ravelo
