#pragma once

#include "base/Handle.h"
#include "clipboard/CapturePlan.h"
#include "clipboard/CaptureRules.h"
#include "clipboard/ClipReading.h"
#include "clipboard/HandOver.h"
#include "platform/Pasteboard.h"

#include <QObject>
#include <QUuid>

#include <functional>
#include <map>
#include <memory>

class QUrl;

namespace ravelo {

class CapturePause;
class DetachedJobs;
class Scheduler;
class Store;
struct ClipItem;

/// Turns changes of the general pasteboard into clips, and puts clips back on it. Ignores contents
/// that their owner marks as secret, and what the program itself wrote. When a program ends, its
/// contents are replaced with the clip made of them; a program that asks to have them saved first
/// is kept waiting until they have been read. Main thread only.
class ClipboardManager : public QObject {
    Q_OBJECT

public:
    /// What is on the pasteboard now is never captured.
    ClipboardManager(Store& store, Pasteboard& pasteboard, Scheduler& scheduler, DetachedJobs& jobs,
                     CapturePause& pause);

    /// From now on polls at each change that the platform reports, and every 0.5 s if it does not
    /// report all.
    void start();

    /// Applies to later captures.
    void setTextEnds(TextEnds ends) { textEnds_ = ends; }

    /// Likewise.
    void setRules(CaptureRules rules);

    void copyText(const QString& text);

    /// Puts a text of the user's own on the pasteboard, and into the history as the rules and a
    /// pause allow.
    void copyNewText(const QString& text);

    /// Puts a clip on the pasteboard in all its forms, once they are read; if they cannot be read
    /// soon, its text alone. Does nothing if something else was copied meanwhile. `done` hears
    /// whether there is anything to copy; an image may be gone from the disk.
    void copyClip(
        const QUuid& clip, const std::function<void(bool any)>& done = [](bool /*any*/) {});

    /// Puts a stored image on the pasteboard once it is read. Does nothing if the file is no PNG or
    /// something else was copied meanwhile.
    void copyImage(const QString& path);

    /// Puts a text and a stored image on the pasteboard as one object; only the text if the file is
    /// no PNG. Otherwise as `copyImage`.
    void copyWithImage(const QString& text, const QString& path);

    /// Puts an image on the pasteboard: a PNG's bytes.
    void copyPng(const QByteArray& png);

    /// Puts a file on the pasteboard so that file managers can paste a copy. Does nothing if the
    /// URL is not of a file.
    void copyFile(const QUrl& url);

Q_SIGNALS:
    /// Once for each copy that is too large to keep anything of it.
    void tooLarge(const ravelo::TooLarge& copy);

    /// A copied text has the form of a secret and exists in memory only.
    void secretKept(const QString& form);

private:
    using Forms = QList<PasteboardEntry>;

    /// Where the contents come from. A file that its owner named is never offered in our name: the
    /// owner might not be allowed to read it.
    enum class Source { owner, file };
    enum class Clip {
        pending,
        converting, ///< Pending; may still prove impossible to keep.
        kept,
        refused,
        cleared
    };

    /// The newest contents captured or written by us.
    struct Held {
        qint64 changeCount;
        HeldContents contents;
        Source source = Source::owner;
        Clip clip = Clip::pending;
        QUuid id{}; ///< Of the clip once it is kept; null if we wrote the contents.

        [[nodiscard]] bool isPending() const {
            return clip == Clip::pending || clip == Clip::converting;
        }
    };

    /// What else is known of a copy when its clip is kept.
    struct Origin {
        QString program;
        bool hasForms; ///< Besides the text.
    };

    void poll();
    void ignore();
    void read(qint64 count, const QStringList& useless);
    void finishRead(qint64 count, const PasteboardSnapshot& snapshot, const QStringList& useless,
                    Seconds seen);
    void capture(const PasteboardSnapshot& snapshot, const QStringList& useless, Seconds seen);
    [[nodiscard]] bool isPassedOn(const PasteboardSnapshot& snapshot, const ContentsKey& key,
                                  Seconds seen) const;
    void keep(const PasteboardSnapshot& snapshot, const QStringList& useless);
    void keepText(const QString& text, const Origin& origin);
    void keepImage(const PasteboardSnapshot& snapshot, const QStringList& useless);
    [[nodiscard]] Judging judging(std::function<void(const Verdict&)> judged) const;

    [[nodiscard]] Origin originOf(const PasteboardSnapshot& snapshot) const;
    void kept(Held& held, const QUuid& clip, const Origin& origin);
    void readForms(const Held& held, const QString& program);
    void judgeForms(const QUuid& clip, const ClipForms& forms);
    void formsEnded();
    void refuse(const std::optional<TooLarge>& reason);
    void answerSaveRequest();
    void offerAgain();
    [[nodiscard]] bool isLost(const Held* held) const;
    [[nodiscard]] const ClipItem* find(const QUuid& clip) const;
    [[nodiscard]] std::function<void(const Forms&)> unlessOverwritten();
    void write(const Forms& forms);
    void suppressOwnChange(qint64 count);

    /// Calls `action` with what is held now, unless something else was copied since, the history
    /// was cleared, or this object is gone.
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
    DetachedJobs& jobs_; ///< To judge forms.
    ClipReading reading_;
    CapturePause& pause_;
    CaptureRules rules_;
    TextEnds textEnds_ = TextEnds::trimmed;
    qint64 lastChangeCount_;
    qint64 suppressUntilCount_ = -1; ///< Our own change.
    qint64 unwantedCount_ = -1;      ///< The last copy that was not to be kept.
    std::shared_ptr<Held> held_;     ///< Null at first.
    bool ignoredLast_ = false;       ///< The last copy, which a manager may pass on.
    Handle timer_;
    Handle notice_;
    Handle saveRequests_;
    bool saveAsked_ = false;
    Handle readingForms_;            ///< Of the newest clip; null if there is nothing to read.
    Handle copying_;                 ///< Reads an image or the forms of a clip to copy it.
    Handle offering_;                ///< Reads them to offer them again.
    std::map<qint64, Handle> reads_; ///< By change count; older ones end with the newest answer.
};

} // namespace ravelo
