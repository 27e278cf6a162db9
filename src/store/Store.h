#pragma once

#include "base/Handle.h"
#include "store/Records.h"

#include <QObject>

#include <functional>
#include <optional>

namespace ravelo {

class Pasteboard;
class Preferences;
class Scheduler;
class Worker;
struct ClipChange;
struct PasteboardSnapshot;

/// The one observable store that every view reads: clips, snippets, notes, sketch and shelf.
/// Setting a note never saves by itself; the operations do. Saves are debounced and written by the
/// worker. Failures are silent: what is in memory stays and is written by the next save.
/// Main thread only.
class Store : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString note READ note WRITE setNote NOTIFY noteChanged)

public:
    /// What the store needs of the platform; all of it outlives the store.
    struct Services {
        Scheduler& scheduler;
        Worker& worker;
        Preferences& preferences;
        Pasteboard& pasteboard;
    };

    /// Loads "store.json" from `folder` (made if missing, 0700) and seeds the snippets.
    Store(const QString& folder, Services services);

    /// Drops what is not written yet; see `flush`.
    ~Store() override;

    [[nodiscard]] QString fileURL() const;
    [[nodiscard]] QString clipsDir() const;
    /// Absolute path of an image in the clips folder.
    [[nodiscard]] QString imagePath(const QString& imageFileName) const;

    [[nodiscard]] const QList<ClipItem>& clips() const;
    [[nodiscard]] const QList<Snippet>& snippets() const;
    /// The parked files, oldest stack first, as absolute paths.
    [[nodiscard]] const QList<QStringList>& shelfStacks() const;
    [[nodiscard]] QString note() const;
    void setNote(const QString& note);

    /// Adds a text, as `ClipHistory::added` has it. Waits behind images that are still being
    /// written, so that the order of the clips is the order of copying.
    void addClip(const QString& text);

    /// Writes the image in what a pasteboard read with `nextImageType` gave (PNG bytes as they are,
    /// all else converted) to the clips folder and, once it is there, adds its clip. Nothing is
    /// added where there is no image or it cannot be written.
    void addImageClip(const PasteboardSnapshot& contents);

    Q_INVOKABLE void togglePin(const QUuid& id);
    Q_INVOKABLE void deleteClip(const QUuid& id);
    /// Takes away all unpinned clips, also those that are still on their way.
    Q_INVOKABLE void clearClips();
    void updateSnippet(const Snippet& snippet);

    /// Writes the image now on the pasteboard to the clips folder and calls `done` with its file
    /// name, or with an empty one where there is no image. Later, never from within the call. When
    /// the handle is dropped before that, `done` is not called and no file stays.
    [[nodiscard]] Handle saveClipboardImageForSnippet(std::function<void(QString)> done);

    /// Schedules a write of the whole store, 0.4 s after the last of a burst of calls.
    Q_INVOKABLE void save();

    /// Writes what is pending now and waits for it, with the images that are on their way. For the
    /// end of the program; needs no event loop.
    void flush();

Q_SIGNALS:
    void cleared(); ///< The user wants all of it gone, also what is still being read.
    void clipsChanged();
    void snippetsChanged();
    void noteChanged();

private:
    /// Whether the file on disk is one of ours or has to be kept for the user to look into.
    enum class FileState { ours, unreadable };

    void load();
    void addLinkSnippetsIfNeeded();
    void capture(std::function<void()> job, std::function<void()> add,
                 std::function<void()> discard);
    void apply(std::optional<ClipChange> change);
    void removeImages(const QStringList& imageFileNames);
    void write();

    Services services_;
    QString folder_;
    StoreData data_;
    FileState file_ = FileState::ours;
    int capturesOnTheirWay_ = 0;
    int clearings_ = 0; ///< Tells captures from before the last clearing from later ones.
    std::optional<StoreData> unsaved_;
    Handle pendingSave_;
};

} // namespace ravelo
