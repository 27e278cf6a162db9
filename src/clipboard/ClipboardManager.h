#pragma once

#include "base/Handle.h"
#include "clipboard/CapturePlan.h"
#include "clipboard/HandOver.h"
#include "platform/Pasteboard.h"

#include <QObject>
#include <QUuid>

#include <functional>
#include <map>
#include <memory>

class QUrl;

namespace ravelo {

class DetachedJobs;
class Scheduler;
class Store;
struct ClipItem;

/// Turns changes of the general pasteboard into clips, and puts clips back on it. Contents that
/// their owner marks as secret are left alone, and so is what the program wrote itself. Where a
/// program ends and the contents with it, the clip that was made of them takes their place, and a
/// program that asks for it before it ends is kept waiting until they have been read.
/// Main thread only.
class ClipboardManager {
public:
    /// What is on the pasteboard at this moment is never captured.
    ClipboardManager(Store& store, Pasteboard& pasteboard, Scheduler& scheduler,
                     DetachedJobs& jobs);

    /// Looks every 0.5 s from now on, and at once where the platform tells of a change.
    void start();

    /// Of the texts that are captured from now on.
    void setTextEnds(TextEnds ends) { textEnds_ = ends; }

    void copyText(const QString& text);

    /// Puts a stored image on the pasteboard, once it is read; does nothing if the file is no PNG
    /// or something else was copied meanwhile.
    void copyImage(const QString& path);

    /// Puts a file on the pasteboard, for file managers to paste a copy of it; does nothing where
    /// the address is not of a file.
    void copyFile(const QUrl& url);

    /// Called once for each copy of which nothing is kept because it is too large.
    std::function<void(const TooLarge&)> onTooLarge;

private:
    using Forms = QList<PasteboardEntry>;

    /// Where what is made of the contents may come from; a file that its owner named is never
    /// offered in our name, as its owner might not be allowed to read it.
    enum class Source { owner, file };
    enum class Clip {
        pending,
        converting, ///< Pending, and may still turn out to be nothing that can be kept.
        kept,
        refused,
        cleared
    };

    /// The newest contents that were captured or written by us.
    struct Held {
        qint64 changeCount;
        HeldContents contents;
        Source source = Source::owner;
        Clip clip = Clip::pending;
        QUuid id{}; ///< Of the clip, once it is kept; null where we wrote the contents.

        [[nodiscard]] bool isPending() const {
            return clip == Clip::pending || clip == Clip::converting;
        }
    };

    void poll();
    void read(qint64 count, const QStringList& useless);
    void finishRead(qint64 count, const PasteboardSnapshot& snapshot, const QStringList& useless,
                    Seconds seen);
    void capture(const PasteboardSnapshot& snapshot, const QStringList& useless, Seconds seen);
    [[nodiscard]] bool isPassedOn(const PasteboardSnapshot& snapshot, const ContentsKey& key,
                                  Seconds seen) const;
    void keep(const PasteboardSnapshot& snapshot, const QStringList& useless);
    void keepImage(const PasteboardSnapshot& snapshot, const QStringList& useless);
    void kept(Held& held, const QUuid& clip);
    void refuse(const std::optional<TooLarge>& tooLarge);
    void answerSaveRequest();
    void offerAgain();
    [[nodiscard]] bool isLost(const Held* held) const;
    [[nodiscard]] const ClipItem* find(const QUuid& clip) const;
    [[nodiscard]] Handle readImage(const QString& path, std::function<void(const Forms&)> done);
    void write(const Forms& forms);
    void suppressOwnChange(qint64 count);

    /// Calls `action` with what is held now, unless something else was copied since, the history
    /// was cleared, or we are gone.
    template <typename Action>
    [[nodiscard]] auto whileHeld(Action action) {
        return [this, weak = std::weak_ptr(held_), action = std::move(action)](const auto& result) {
            if (const auto held = weak.lock(); held && held == held_ && held->isPending()) {
                action(*held, result);
            }
        };
    }

    Store& store_;
    Pasteboard& pasteboard_;
    Scheduler& scheduler_;
    DetachedJobs& jobs_;
    TextEnds textEnds_ = TextEnds::trimmed;
    qint64 lastChangeCount_;
    qint64 suppressUntilCount_ = -1; ///< The change that we made ourselves.
    std::shared_ptr<Held> held_;     ///< Null at first.
    Handle timer_;
    Handle notice_;
    Handle saveRequests_;
    bool saveAsked_ = false;
    Handle copying_;  ///< An image that is being read to be copied.
    Handle offering_; ///< Likewise, to be offered again.
    QObject context_;
    std::map<qint64, Handle>
        reads_; ///< By change count; those up to the newest answer are settled.
};

} // namespace ravelo
