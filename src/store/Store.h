#pragma once

#include "base/Handle.h"
#include "base/OwnFile.h"
#include "shelf/FileLook.h"
#include "shelf/Shelf.h"
#include "store/Captures.h"
#include "store/ClipHistory.h"
#include "store/Records.h"
#include "store/TooLarge.h"
#include "timer/FocusTimer.h"
#include "timer/Reminders.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace ravelo {

class AlertSound;
class Deleted;
class DetachedJobs;
class ImageDecoder;
class Pasteboard;
class Preferences;
class Scheduler;
class Worker;
struct DeletedRecord;
struct PasteboardSnapshot;

/// The one observable store that every view reads: clips, snippets, notes, sketch and shelf, the
/// focus timer and the reminders. The timer ends with the program; the reminders are preferences.
/// Setting a note never saves by itself; the operations do. Saves are debounced and written by the
/// worker. What could not be saved stays in memory and is saved again later, or by the next save.
/// Main thread only.
class Store : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString note READ note WRITE setNote NOTIFY noteChanged)
    Q_PROPERTY(int shelfRequestTick READ shelfRequestTick NOTIFY shelfRequestTickChanged)
    Q_PROPERTY(bool timerRunning READ timerRunning NOTIFY timerChanged)
    Q_PROPERTY(QString timerLabel READ timerLabel NOTIFY timerChanged)
    Q_PROPERTY(double timerDuration READ timerDuration NOTIFY timerChanged)
    Q_PROPERTY(bool reminderOpen READ reminderOpen WRITE setReminderOpen NOTIFY remindersChanged)
    Q_PROPERTY(QStringList reminders READ reminders WRITE setReminders NOTIFY remindersChanged)
    Q_PROPERTY(bool reminderVisible READ reminderVisible NOTIFY remindersChanged)

public:
    /// What the store needs of the platform; all of it outlives the store.
    struct Services {
        Scheduler& scheduler;
        Worker& worker;
        Preferences& preferences;
        Pasteboard& pasteboard;
        AlertSound& sound;
        DetachedJobs& jobs;        ///< For looks at parked files.
        DetachedJobs& copiedFiles; ///< For reads of copied files; when full, they give nothing.
        DetachedJobs& conversions; ///< To make PNG of images, which always ends.
        std::shared_ptr<ImageDecoder> decoder; ///< Jobs hold it, too.
        OwnFile::Permission mayWrite = {};     ///< Asked before each change of a file.
    };

    /// Loads "store.json" from `folder` (made if missing, 0700) and seeds the snippets. Parked
    /// files that are gone leave the shelf, and images that nothing names their folder, a little
    /// later.
    Store(const QString& folder, Services services);

    /// Drops what is not written yet; see `flush`.
    ~Store() override;

    [[nodiscard]] QString fileURL() const;
    [[nodiscard]] QString clipsDir() const;
    /// What that is for a store in `folder`.
    [[nodiscard]] static QString clipsFolder(const QString& folder);
    /// Absolute path of an image in the clips folder.
    [[nodiscard]] QString imagePath(const QString& imageFileName) const;

    [[nodiscard]] const QList<ClipItem>& clips() const;
    [[nodiscard]] const QList<Snippet>& snippets() const;
    /// The parked files and which of them are selected.
    [[nodiscard]] const Shelf& shelf() const;
    [[nodiscard]] QString note() const;
    void setNote(const QString& note);

    /// Counts from the next copy or pin on, but that newer clips come first is seen at once. What
    /// is too many goes with the next copy: who chooses another limit by mistake loses nothing.
    void setHistoryRules(const HistoryRules& rules);

    /// Called with the clip that holds the copy, new or old; not called if there is none.
    using Kept = std::function<void(const QUuid&)>;

    /// Told that nothing is kept of an image that was copied: it is too large or, if it is nothing,
    /// cannot be decoded or written. Never after the history was cleared.
    using Refused = std::function<void(const std::optional<TooLarge>&)>;

    /// Adds a text, as `ClipHistory::added` has it. Waits behind images that are still being
    /// written, so that the order of the clips is the order of copying.
    void addClip(const QString& text, Kept kept = {});

    /// Writes the image in what a pasteboard read with `nextImageType` gave (PNG bytes as they are,
    /// all else converted) to the clips folder and, once it is there, adds its clip. Nothing is
    /// added where there is no image or it cannot be written.
    void addImageClip(const PasteboardSnapshot& contents, Kept kept = {}, Refused refused = {});

    Q_INVOKABLE void togglePin(const QUuid& id);
    /// Memory and disk lose what is deleted at once; `kept`, if any, gets it for `restore`.
    void deleteClip(const QUuid& id, const std::shared_ptr<Deleted>& kept = {});
    /// Takes away all unpinned clips, also those that are still on their way.
    void clearClips(const std::shared_ptr<Deleted>& kept);

    Q_INVOKABLE void clearClips() { clearClips({}); }

    void updateSnippet(const Snippet& snippet);
    /// Appends it.
    void addSnippet(const Snippet& snippet);
    /// Takes it away with its image. As `deleteClip` has it.
    void removeSnippet(const QUuid& id, const std::shared_ptr<Deleted>& kept = {});

    struct Restored {
        qsizetype count = 0;   ///< Records that are back.
        QString problem;       ///< Why not all, in words fit for the user.
        bool canRetry = false; ///< What could not be written is still in memory.
    };

    /// Puts back what was deleted, once its images are on the disk again, and calls `done`. What
    /// was copied again meanwhile counts as back. If the history is
    /// cleared before this has finished, its unpinned clips do not come back.
    void restore(const std::shared_ptr<Deleted>& deleted,
                 std::function<void(const Restored&)> done);

    /// Writes the image now on the pasteboard to the clips folder and calls `done` with its file
    /// name, or with an empty one where there is no image. Later, never from within the call. When
    /// the handle is dropped before that, `done` is not called and no file stays.
    [[nodiscard]] Handle saveClipboardImageForSnippet(std::function<void(QString)> done);

    /// Deletes files of the clips folder that nothing refers to any more, and what was kept of them
    /// to be shown.
    void removeImages(const QStringList& imageFileNames);

    /// As the rules of `Shelf` have it; nothing is saved where nothing changes.
    void addToShelf(const QList<QUrl>& urls);
    void removeFromShelf(const QUrl& url);
    void removeFromShelf(const QList<QUrl>& urls);
    void toggleSelectStack(const QList<QUrl>& stack);
    Q_INVOKABLE void clearSelection();

    /// Goes up whenever the shelf is to be shown.
    [[nodiscard]] int shelfRequestTick() const { return shelfRequestTick_; }

    void requestShelf();

    /// Starts a timer in place of the one that runs. The label loses the blanks around it. A length
    /// that no timer can have leaves all as it was; see FocusTimer::started.
    Q_INVOKABLE void startTimer(const QString& label, double minutes);
    /// Label and duration stay.
    Q_INVOKABLE void stopTimer();

    [[nodiscard]] bool timerRunning() const { return timer_.running(); }

    [[nodiscard]] QString timerLabel() const { return timer_.label; } ///< Of the last one, too.

    [[nodiscard]] double timerDuration() const { return timer_.duration.count(); } ///< Seconds.

    /// Seconds, counted anew at every call; nothing tells of its changes.
    [[nodiscard]] Q_INVOKABLE double timerRemaining() const;

    [[nodiscard]] bool reminderOpen() const { return reminders_.open; }

    void setReminderOpen(bool open);

    [[nodiscard]] const QStringList& reminders() const { return reminders_.texts; }

    void setReminders(const QStringList& texts);

    /// Wanted, and there are some.
    [[nodiscard]] bool reminderVisible() const { return reminders_.visible(); }

    /// After each start, stop and end of the timer and each change of the reminders, once all is
    /// set and told.
    std::function<void()> onTimerChange;

    /// Schedules a write of the whole store, 0.4 s after the last of a burst of calls.
    Q_INVOKABLE void save();

    /// Writes what is pending now and waits for it, with the images that are on their way, but for
    /// copied files that are still being read. For the end of the program; needs no event loop.
    void flush();

Q_SIGNALS:
    void saveEnded(const ravelo::SaveOutcome& outcome);
    void cleared(); ///< The user wants all of it gone, also what is still being read.
    void clipsChanged();
    void snippetsChanged();
    void noteChanged();
    void shelfChanged();
    void shelfRequestTickChanged();
    void timerChanged();
    void timerEnded(); ///< By itself; `timerChanged` follows.
    void remindersChanged();

private:
    /// What is to be written; the paths of the shelf are made of it when it is.
    struct Snapshot {
        StoreData data;
        QList<QList<QUrl>> stacks;
    };

    void load();
    void addLinkSnippetsIfNeeded();
    void dropGone(const FileLook::Found& found);
    [[nodiscard]] std::function<void()> unlessCleared(std::function<void()> add,
                                                      std::function<void()> discard);
    void apply(std::optional<ClipChange> change);
    void takeOffDisk(const QList<DeletedRecord>& records, const std::shared_ptr<Deleted>& kept);
    void putBack(const QList<DeletedRecord>& records);
    void saveAtOnce();
    void tellKept(const QString& text, const Kept& kept) const; ///< For a text.
    void setShelf(Shelf shelf);
    void write();
    void written(const SaveOutcome& outcome);
    void finishTimer();
    void tell(void (Store::*changed)()); ///< A signal, and then `onTimerChange`.

    Services services_;
    HistoryRules rules_;
    QString folder_;
    StoreData data_; ///< But for its shelf, which is `shelf_`.
    Shelf shelf_;
    int shelfRequestTick_ = 0;
    std::shared_ptr<OwnFile> file_; ///< The worker's.
    Captures captures_;
    int clearings_ = 0; ///< Tells captures from before the last clearing from later ones.
    FileLook look_;
    std::optional<QSet<QUrl>> parkedMeanwhile_; ///< While the parked files are looked for.
    std::optional<Snapshot> unsaved_;
    Handle pendingSave_;
    Handle retry_; ///< Of a save that failed.
    FocusTimer timer_;
    Handle timerEnd_;
    Reminders reminders_;
};

} // namespace ravelo
