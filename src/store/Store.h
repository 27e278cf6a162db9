#pragma once

#include "base/Handle.h"
#include "shelf/FileLook.h"
#include "shelf/Shelf.h"
#include "store/Records.h"
#include "store/StoreServices.h"
#include "store/disk/StoreContents.h"
#include "store/disk/StoreSaver.h"
#include "store/history/Captures.h"
#include "store/history/ClipDetails.h"
#include "store/history/ClipHistory.h"
#include "store/history/Forgetting.h"
#include "store/history/Verdict.h"
#include "store/images/ImageFiles.h"
#include "store/images/TooLarge.h"
#include "timer/Countdown.h"
#include "timer/Reminders.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace ravelo {

class Deleted;
class Vault;
struct DeletedRecord;
struct PasteboardSnapshot;

/// The one observable store that every view reads: clips, snippets, notes, sketch and shelf, the
/// focus timer and the reminders. The timer ends with the program; the reminders are preferences.
/// Setting a note or the drawing does not save by itself; the operations do. What could not be
/// saved stays in memory and is saved later or with the next save. Main thread only.
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
    Q_PROPERTY(bool locked READ isLocked NOTIFY lockedChanged)

public:
    using Services = StoreServices;

    /// Loads "store.json" from `folder` (created if missing, 0700) and seeds the snippets. Soon
    /// after, removes missing files from the shelf and unused images from their folder. If the
    /// vault is locked, starts empty and locked.
    Store(const QString& folder, Services services);

    /// Drops unsaved changes; see `flush`.
    ~Store() override;

    [[nodiscard]] QString fileURL() const;
    [[nodiscard]] QString clipsDir() const;
    /// The clips folder of a store in `folder`.
    [[nodiscard]] static QString clipsFolder(const QString& folder);
    /// Absolute path of an image in the clips folder.
    [[nodiscard]] QString imagePath(const QString& imageFileName) const;

    /// The files of the store.
    [[nodiscard]] const std::shared_ptr<Vault>& vault() const { return services_.vault; }

    /// It is encrypted and its key is not available: only what was added since is here.
    [[nodiscard]] bool isLocked() const { return locked_; }

    /// The vault was opened: reads what is stored, later, and adds what was copied meanwhile.
    void unlock();

    /// Once everything is saved, drops all of it from memory and calls `dropped`, which closes the
    /// vault. Does nothing while saving fails.
    void lock(std::function<void()> dropped);

    /// Why the last `lock` still waits, for the user; empty if it does not, or nothing failed.
    [[nodiscard]] const QString& lockProblem() const { return lockProblem_; }

    /// Removes everything from memory and disk; nothing is kept or saved from now on. Then calls
    /// `done`, with the first failure.
    void erase(std::function<void(const Result<void>&)> done);

    /// For a program that keeps running after `erase`, because something was not erased: begins
    /// with what is left on the disk.
    void resume();

    [[nodiscard]] const QList<ClipItem>& clips() const;
    [[nodiscard]] const QList<Snippet>& snippets() const;
    /// The parked files and which of them are selected.
    [[nodiscard]] const Shelf& shelf() const;
    [[nodiscard]] QString note() const;
    void setNote(const QString& note);

    [[nodiscard]] const QString& note2() const { return data_.note2; }

    void setNote2(const QString& note);

    [[nodiscard]] const QList<Stroke>& drawing() const { return data_.drawing; }

    void setDrawing(const QList<Stroke>& drawing);

    /// Applies from the next copy or pin on; only the order "newer first" applies at once. Surplus
    /// clips go with the next copy, and old ones in a minute, so that choosing a limit by mistake
    /// loses nothing.
    void setHistoryRules(const HistoryRules& rules);

    /// Bytes of all texts in UTF-8, and of all images, with what is kept beside them.
    [[nodiscard]] qint64 textBytes() const;
    [[nodiscard]] qint64 imageBytes() const;

    /// Called with the clip, new or old, that holds the copy; not called if there is none.
    using Kept = std::function<void(const QUuid&)>;

    /// Why an image is not kept.
    struct Refusal {
        enum class Cause { undecodable, tooLarge, unwritable };

        Cause cause;
        std::optional<TooLarge> tooLarge; ///< Set if that is the cause.
    };

    /// Called if an image is not kept. Never called after the history was cleared.
    using Refused = std::function<void(const Refusal&)>;

    /// Adds a text; see `ClipHistory::added`. Waits for images that are still being written, so
    /// that the clips are in the order of copying. A secret that is already in the history as an
    /// ordinary clip stays one.
    void addClip(const QString& text, Kept kept = {}, Judging judging = {});

    /// Writes the image that was read with `nextImageType` (PNG bytes as they are, all others
    /// converted) to the clips folder, then adds its clip. Adds nothing if there is no image or it
    /// cannot be written.
    void addImageClip(const PasteboardSnapshot& contents, Kept kept = {}, Refused refused = {});

    /// Keeps these beside a clip, in place of earlier ones. Not for secrets. If they cannot be
    /// written, nothing is kept beside it.
    void setForms(const QUuid& clip, const ClipForms& kept);

    /// Whether something may be kept beside a clip, in the file at `formsPath`.
    [[nodiscard]] bool hasForms(const QUuid& clip) const;
    [[nodiscard]] QString formsPath(const QUuid& clip) const;

    /// What is known: clips copied since the start, and those looked up.
    [[nodiscard]] ClipDetails detailsOf(const QUuid& clip) const { return details_.value(clip); }

    /// Looks up what is not known yet, of all clips or of one; then `detailsChanged` is emitted.
    /// One lookup at a time; what is asked for meanwhile is looked up after it.
    void lookUpDetails(const QUuid& only = {});

    /// How long after copying secrets are forgotten; nothing for never. Applies at once.
    void setForgetAfter(std::optional<Seconds> after);

    /// The time left until a secret is forgotten.
    [[nodiscard]] std::optional<Seconds> untilForgotten(const ClipItem& clip) const {
        return forgetting_.left(clip);
    }

    /// Makes secrets ordinary clips: one, or all of them of a known form.
    Q_INVOKABLE void keepSecret(const QUuid& id);
    void keepSecrets();

    /// Also makes a secret an ordinary clip.
    Q_INVOKABLE void togglePin(const QUuid& id);
    /// Deletes at once, also on the disk; `kept`, if any, gets the clip for `restore`.
    void deleteClip(const QUuid& id, const std::shared_ptr<Deleted>& kept = {});
    void deleteClips(const QSet<QUuid>& ids, const std::shared_ptr<Deleted>& kept);
    /// Deletes all unpinned clips, also those that are still on their way.
    void clearClips(const std::shared_ptr<Deleted>& kept);

    Q_INVOKABLE void clearClips() { clearClips({}); }

    /// Deletes the unpinned clips of the last hour, also those that are still on their way.
    void clearLastHour(const std::shared_ptr<Deleted>& kept = {});
    [[nodiscard]] qsizetype lastHourCount() const;

    /// Adds everything of another store, whose files are in the clips folder already; ids are new.
    /// Calls `saved` once it is on the disk. Returns how many snippets are new. If it is locked or
    /// erased, removes the files, returns nothing and does not call `saved`.
    std::optional<qsizetype> addAll(const StoreContents& contents,
                                    std::function<void(const SaveOutcome&)> saved);

    /// Calls `ready` once files can be written for `addAll`: until the handle is dropped, no
    /// cleared history removes what nothing names yet.
    [[nodiscard]] Handle keepFiles(std::function<void()> ready);

    /// Everything, as it is saved.
    [[nodiscard]] StoreContents contents() const { return {data_, shelf_.stacks}; }

    void updateSnippet(const Snippet& snippet);
    /// Appends it.
    void addSnippet(const Snippet& snippet);
    /// Removes it with its image; see `deleteClip`.
    void removeSnippet(const QUuid& id, const std::shared_ptr<Deleted>& kept = {});

    struct Restored {
        qsizetype count = 0;   ///< Of restored records.
        QString problem;       ///< Why not all; for the user.
        bool canRetry = false; ///< The rest is still in memory.
    };

    /// Puts deleted records back once their images are on the disk again, then calls `done`. A text
    /// that was copied again meanwhile counts as restored. If the history is cleared first,
    /// unpinned clips do not come back.
    void restore(const std::shared_ptr<Deleted>& deleted,
                 const std::function<void(const Restored&)>& done);

    /// Writes the image now on the pasteboard to the clips folder and calls `done` later with its
    /// file name, or with an empty one if there is no image. If the handle is dropped before that,
    /// `done` is not called and no file stays.
    [[nodiscard]] Handle saveClipboardImageForSnippet(std::function<void(QString)> done);

    /// Deletes files of the clips folder that are not in use, and their cached thumbnails.
    void removeImages(const QStringList& imageFileNames);
    /// Deletes an image that a snippet no longer has, unless something else has it.
    void removeUnusedImage(const QString& imageFileName);

    /// Following the rules of `Shelf`. Saves only changes.
    void addToShelf(const QList<QUrl>& urls);
    void removeFromShelf(const QUrl& url);
    void removeFromShelf(const QList<QUrl>& urls);
    void restoreShelf(const Shelf& before);
    void toggleSelectStack(const QList<QUrl>& stack);
    Q_INVOKABLE void clearSelection();

    /// Increases with each `requestShelf`.
    [[nodiscard]] int shelfRequestTick() const { return shelfRequestTick_; }

    void requestShelf();

    /// Replaces a running timer. Trims the label. Does nothing if the length is impossible; see
    /// `FocusTimer::started`.
    Q_INVOKABLE void startTimer(const QString& label, double minutes);
    /// Keeps label and duration.
    Q_INVOKABLE void stopTimer();

    [[nodiscard]] bool timerRunning() const { return countdown_.timer().running(); }

    [[nodiscard]] QString timerLabel() const { return countdown_.timer().label; }

    [[nodiscard]] double timerDuration() const { return countdown_.timer().duration.count(); }

    /// Seconds, computed at each call; changes are not notified.
    [[nodiscard]] Q_INVOKABLE double timerRemaining() const;

    [[nodiscard]] bool reminderOpen() const { return reminders_.open; }

    void setReminderOpen(bool open);

    [[nodiscard]] const QStringList& reminders() const { return reminders_.texts; }

    void setReminders(const QStringList& texts);

    /// Open, and not empty.
    [[nodiscard]] bool reminderVisible() const { return reminders_.visible(); }

    /// Called after each start, stop and end of the timer and each change of the reminders, once
    /// all fields are set and the signals emitted.
    std::function<void()> onTimerChange;

    /// Schedules a write of the whole store, 0.4 s after the last call of a burst.
    Q_INVOKABLE void save();

    /// Writes pending changes now and waits for them and for images on their way, but not for
    /// copied files that are still being read. For the end of the program; needs no event loop.
    void flush();

Q_SIGNALS:
    void saveEnded(const ravelo::SaveOutcome& outcome);
    /// Why files of deleted records were not removed, for the user; empty once no such file can be
    /// left.
    void removalEnded(const QString& problem);
    /// A copied image could not be written, for this reason; for the user.
    void imageNotKept(const QString& reason);
    void lockedChanged();
    void imported(); ///< By `addAll`.
    void detailsChanged();
    void cleared(); ///< Also cancels copies that are still being read.
    void clipsChanged();
    void snippetsChanged();
    void noteChanged(); ///< The first or the second note.
    void drawingChanged();
    void shelfChanged();
    void shelfRequestTickChanged();
    void timerChanged();
    void timerEnded(); ///< By itself; `timerChanged` follows.
    void remindersChanged();

private:
    void load();
    void begin(ReadStore stored);
    void adopt(ReadStore stored);
    void addSeeds();
    void addLinkSnippetsIfNeeded();
    void saveEndedWith(const SaveOutcome& outcome);
    void dropData();
    void dropAll();
    void announceAll();
    void clear(ClipChange change, const std::shared_ptr<Deleted>& kept);
    void trim();
    void trimLater();
    void trimForms();
    void formsFailed(const QUuid& clip, const ClipDetails& described);
    void removeLeftoversSoon(std::optional<Date> since);
    void removeLeftovers(std::optional<Date> since);
    void lookedUp(const QHash<QUuid, ClipDetails>& found);
    [[nodiscard]] QStringList goneImages(const QList<ClipItem>& before) const;
    [[nodiscard]] QStringList goneForms(const QList<ClipItem>& before);
    void measureFiles(std::function<void()> job = {});
    enum class Removal { some, allLeftovers };
    void removeFiles(std::function<Result<void>()> remove, Removal removal = Removal::some);
    [[nodiscard]] static QUrl folderOf(const QUrl& file);
    void dropGone(const FileLook::Found& found);
    [[nodiscard]] std::function<void()> unlessCleared(std::function<void()> add,
                                                      std::function<void()> discard);
    void apply(std::optional<ClipChange> change);
    void forget(const QList<QUuid>& secrets);
    [[nodiscard]] QStringList takeOffDisk(const QList<DeletedRecord>& records,
                                          const std::shared_ptr<Deleted>& kept);
    void putBack(const QList<DeletedRecord>& records);
    void reportKept(const QString& text, const Kept& kept) const; ///< For a text.
    void setShelf(Shelf shelf);
    void notify(void (Store::*changed)()); ///< Emits a signal, then calls `onTimerChange`.

    Services services_;
    bool locked_ = false;
    bool opening_ = false; ///< Its contents are being read.
    bool erased_ = false;
    HistoryRules rules_;
    FileSizes fileSizes_;
    bool sizesKnown_ = false; ///< The sizes of files from earlier runs.
    int measurings_ = 0;      ///< Only the last one counts.
    QHash<QUuid, ClipDetails> details_;
    Handle lookingUp_;
    std::optional<QUuid> lookUpNext_;           ///< Null for all.
    int keepingFiles_ = 0;                      ///< Handles of `keepFiles`.
    QList<std::optional<Date>> leftoversAsked_; ///< To be removed once it is 0.
    QSet<QString> lentImages_;                  ///< On their way to a clip or a snippet.
    QStringList waitingFiles_;                  ///< To be removed after the next save.
    std::function<void()> dropped_;             ///< Set while a lock waits for a save.
    QString lockProblem_;
    Handle trimming_;
    QString folder_;
    StoreData data_; ///< All but the shelf.
    Shelf shelf_;
    int shelfRequestTick_ = 0;
    StoreSaver saver_;
    Forgetting forgetting_;
    Captures captures_;
    int clearings_ = 0; ///< Lets captures see that the history was cleared meanwhile.
    FileLook look_;
    std::optional<QSet<QUrl>> parkedMeanwhile_; ///< Set while the parked files are being checked.
    Countdown countdown_;
    Reminders reminders_;
};

} // namespace ravelo
