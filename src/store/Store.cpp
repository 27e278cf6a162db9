#include "store/Store.h"

#include "base/FileUrl.h"
#include "base/Files.h"
#include "base/Scheduler.h"
#include "base/UriList.h"
#include "base/Uuid.h"
#include "platform/AlertSound.h"
#include "platform/Pasteboard.h"
#include "platform/Preferences.h"
#include "platform/Worker.h"
#include "store/ClipHistory.h"
#include "store/PasteboardImage.h"
#include "store/Seeds.h"
#include "store/SnippetImage.h"
#include "store/StoreFile.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QUtf8StringView>

#include <algorithm>
#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds saveDelay{0.4};
constexpr Seconds retryDelay{30}; ///< After a save that failed, as on a full disk.

QString newImageFileName() {
    return uuidText(QUuid::createUuid()) + u".png"_s;
}

/// A path as it is, or an address where text cannot hold its bytes.
QString stored(const QUrl& file) {
    const QByteArray path = filePath(file);
    return QString::fromUtf8(QUtf8StringView(path).isValidUtf8() ? path : fileAddress(file));
}

/// The opposite; an empty URL for what is neither.
QUrl fromStored(const QString& text) {
    return text.startsWith(u'/') ? fileUrl(text.toUtf8()) : localFiles(text.toUtf8(), {}).value(0);
}

QList<QList<QUrl>> existing(const QList<QStringList>& paths) {
    QList<QList<QUrl>> stacks;
    for (const QStringList& stack : paths) {
        QList<QUrl> files;
        for (const QString& path : stack) {
            if (const QUrl url = fromStored(path); fileExists(filePath(url))) {
                files.append(url);
            }
        }
        if (!files.isEmpty()) {
            stacks.append(std::move(files));
        }
    }
    return stacks;
}

QList<QStringList> paths(const QList<QList<QUrl>>& stacks) {
    QList<QStringList> all;
    for (const QList<QUrl>& stack : stacks) {
        QStringList& one = all.emplaceBack();
        for (const QUrl& url : stack) {
            one.append(stored(url));
        }
    }
    return all;
}

} // namespace

Store::Store(const QString& folder, Services services)
    : services_(services),
      folder_(QDir(folder).absolutePath()),
      reminders_(Reminders::load(services.preferences)) {
    makePrivateFolder(folder_);
    makePrivateFolder(clipsDir());
    load();
    if (data_.snippets.isEmpty()) {
        data_.snippets = seedSnippets();
    }
    addLinkSnippetsIfNeeded();
}

Store::~Store() = default;

QString Store::fileURL() const {
    return folder_ + u"/store.json"_s;
}

QString Store::clipsDir() const {
    return folder_ + u"/clips"_s;
}

QString Store::imagePath(const QString& imageFileName) const {
    // A name only, whatever the file says: nothing outside the folder is ever shown or deleted.
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

void Store::load() {
    const std::optional<QByteArray> bytes = readFile(fileURL());
    std::optional<StoreData> decoded = bytes ? decodeStore(*bytes) : std::nullopt;
    if (!decoded) {
        file_ = FileState::unreadable;
        return;
    }
    data_ = std::move(*decoded);
    shelf_.stacks = existing(std::exchange(data_.shelfStacks, {}));
    save();
}

void Store::addLinkSnippetsIfNeeded() {
    const QString key = u"seededSiteLinksV1"_s;
    if (services_.preferences.value(key).isUndefined()) {
        services_.preferences.set(key, true);
        data_.snippets.append(linkSnippets());
        save();
    }
}

void Store::addClip(const QString& text, Kept kept) {
    auto add = [this, text, kept = std::move(kept), now = services_.scheduler.now()] {
        apply(ClipHistory::added(data_.clips, text, now));
        tellKept(text, kept);
    };
    if (capturesOnTheirWay_ == 0) {
        add();
    } else {
        capture([] {}, std::move(add), [] {});
    }
}

void Store::addImageClip(const PasteboardSnapshot& contents, Kept kept) {
    const QString name = newImageFileName();
    const auto written = std::make_shared<bool>(false);
    auto job = [path = imagePath(name), contents, written, decoder = services_.decoder] {
        const QByteArray png = pngImage(contents, *decoder);
        *written = !png.isEmpty() && writeFileAtomically(path, png);
    };
    auto add = [this, name, written, kept = std::move(kept), now = services_.scheduler.now()] {
        if (*written) {
            apply(ClipHistory::imageAdded(data_.clips, name, now));
            if (kept) {
                kept(data_.clips.front().id);
            }
        }
    };
    capture(std::move(job), std::move(add), [this, name] { removeImages({name}); });
}

/// The newest unpinned clip is the one, unless it is an image, which has a text too.
void Store::tellKept(const QString& text, const Kept& kept) const {
    const auto newest = std::ranges::find(data_.clips, false, &ClipItem::pinned);
    if (kept && newest != data_.clips.cend() && newest->text == text &&
        newest->kind != ClipKind::image) {
        kept(newest->id);
    }
}

/// Runs `job` on the worker and then `add`, or `discard` where the history was cleared meanwhile.
void Store::capture(std::function<void()> job, std::function<void()> add,
                    std::function<void()> discard) {
    ++capturesOnTheirWay_;
    services_.worker.run(std::move(job), [store = QPointer(this), clearings = clearings_,
                                          add = std::move(add), discard = std::move(discard)] {
        if (store) {
            --store->capturesOnTheirWay_;
            store->clearings_ == clearings ? add() : discard();
        }
    });
}

void Store::apply(std::optional<ClipChange> change) {
    if (!change) {
        return;
    }
    data_.clips = std::move(change->clips);
    removeImages(change->orphanedImages);
    save();
    Q_EMIT clipsChanged();
}

void Store::removeImages(const QStringList& imageFileNames) {
    for (const QString& name : imageFileNames) {
        services_.worker.run([path = imagePath(name)] { QFile::remove(path); });
    }
}

void Store::togglePin(const QUuid& id) {
    apply(ClipHistory::pinToggled(data_.clips, id));
}

void Store::deleteClip(const QUuid& id) {
    apply(ClipHistory::deleted(data_.clips, id));
}

void Store::clearClips() {
    ++clearings_;
    Q_EMIT cleared();
    apply(ClipHistory::cleared(data_.clips));
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

void Store::removeSnippet(const QUuid& id) {
    const auto found = std::ranges::find(data_.snippets, id, &Snippet::id);
    if (found != data_.snippets.end()) {
        const Snippet removed = *found;
        data_.snippets.erase(found);
        if (!removed.imageFileName.isEmpty()) {
            removeImages({removed.imageFileName});
        }
        save();
        Q_EMIT snippetsChanged();
    }
}

void Store::addToShelf(const QList<QUrl>& urls) {
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
    return saveSnippetImage(services_, imagePath(name), [name, done = std::move(done)](bool saved) {
        done(saved ? name : QString());
    });
}

void Store::startTimer(const QString& label, double minutes) {
    const auto timer = FocusTimer::started(label, minutes, services_.scheduler.uptime());
    if (timer) {
        timer_ = *timer;
        timerEnd_ = services_.scheduler.after(timer_.duration, [this] { finishTimer(); });
        tell(&Store::timerChanged);
    }
}

void Store::stopTimer() {
    timer_.start.reset();
    timerEnd_.reset();
    tell(&Store::timerChanged);
}

void Store::finishTimer() {
    timer_.start.reset();
    timerEnd_.reset();
    services_.sound.play();
    tell(&Store::timerChanged);
}

double Store::timerRemaining() const {
    return timer_.remaining(services_.scheduler.uptime()).count();
}

void Store::setReminderOpen(bool open) {
    reminders_.open = open;
    reminders_.keepOpen(services_.preferences);
    tell(&Store::remindersChanged);
}

void Store::setReminders(const QStringList& texts) {
    reminders_.texts = texts;
    reminders_.keepTexts(services_.preferences);
    tell(&Store::remindersChanged);
}

void Store::tell(void (Store::*changed)()) {
    Q_EMIT(this->*changed)();
    if (onTimerChange) {
        onTimerChange();
    }
}

void Store::save() {
    unsaved_ = {data_, shelf_.stacks};
    pendingSave_ = services_.scheduler.after(saveDelay, [this] { write(); });
}

void Store::write() {
    pendingSave_.reset();
    if (!unsaved_) {
        return;
    }
    retry_.reset();
    const auto done = std::make_shared<bool>(false);
    auto job = [done, path = fileURL(), snapshot = std::move(*unsaved_),
                file = std::exchange(file_, FileState::ours)]() mutable {
        if (file == FileState::unreadable) {
            setAsideUnreadable(path);
        }
        snapshot.data.shelfStacks = paths(snapshot.stacks);
        makePrivateFolder(QFileInfo(path).path()); // It may have been removed meanwhile.
        *done = writeFileAtomically(path, encodeStore(snapshot.data));
    };
    unsaved_.reset();
    services_.worker.run(std::move(job), [store = QPointer(this), done] {
        if (store && !*done) {
            store->retry_ =
                store->services_.scheduler.after(retryDelay, [store] { store->save(); });
        }
    });
}

void Store::flush() {
    if (retry_) {
        save();
    }
    do {
        write();
        services_.worker.drain();
    } while (unsaved_);
}

} // namespace ravelo
