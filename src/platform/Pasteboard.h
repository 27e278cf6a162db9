#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"

#include <QByteArray>
#include <QHash>
#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace ravelo {

/// Text on a pasteboard: always UTF-8, whatever type names and encodings the owner offers.
inline constexpr QLatin1StringView plainTextType("text/plain");

/// How many bytes of one answer an adapter accepts.
[[nodiscard]] inline qsizetype maxAnswerSize(const QByteArray& type) {
    constexpr qsizetype mebibyte = 1 << 20;
    return type.startsWith("image/") ? 64 * mebibyte : 8 * mebibyte;
}

/// The program whose contents are on a pasteboard.
struct PasteboardOwner {
    /// A clipboard manager only passes on what others copied.
    enum class Kind { program, manager };

    quint32 id = 0; ///< The same for all copies of one running program; 0 if unknown.
    Kind kind = Kind::program;
    QStringList names{}; ///< App id, or class and instance of its window, as far as known.
};

/// An owner exited, and its contents went with it.
struct OwnerEnd {
    qint64 changeCount; ///< Of those contents.
    Seconds before;     ///< How long before the present owner came.
};

/// What one owner of the pasteboard offers, as far as we asked.
struct PasteboardSnapshot {
    /// Everything on offer: MIME types, and marks under their own names. `plainTextType` stands for
    /// every kind of text.
    QStringList types;

    /// The answer for each type that was asked for; nothing if the owner refused, was too slow or
    /// had more than `maxAnswerSize`.
    QHash<QString, std::optional<QByteArray>> answers;

    /// For each answer that was too large: its size in bytes, as far as known.
    QHash<QString, qint64> tooLarge = {};

    qint64 changeCount = 0; ///< Of these contents.
    PasteboardOwner owner = {};
    std::optional<OwnerEnd> lastEnd = {}; ///< The last one before this owner, if there was any.
};

/// Decides from the answers so far which type to ask for next; an empty string ends the reading. A
/// pure function: the adapter calls it on a thread of its own.
using PasteboardPlan = std::function<QString(const PasteboardSnapshot&)>;

struct PasteboardEntry {
    QString type;
    QByteArray bytes;
};

/// The answer to a program that waits for its contents to be saved.
enum class SaveAnswer { saved, refused };

/// The general pasteboard of the session (on X11 the CLIPBOARD selection, ICCCM 2). Main thread.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// Goes up at every change of owner or contents, our own writes included. To be compared for
    /// equality only.
    [[nodiscard]] virtual qint64 changeCount() const = 0;

    /// Called soon after each change that came from elsewhere, if `reportsChanges`; otherwise
    /// perhaps.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;

    /// Whether every change is reported, so that `changeCount` need not be polled.
    [[nodiscard]] virtual bool reportsChanges() const = 0;

    /// Reads what the present owner offers: first the list of types, then what `plan` asks for,
    /// each with a time-out. `done` is called once, later, on the main thread; never if the owner
    /// changed before everything was read, or the handle was dropped. Never blocks the main thread,
    /// whatever the owner does.
    [[nodiscard]] virtual Handle read(PasteboardPlan plan,
                                      std::function<void(PasteboardSnapshot)> done) = 0;

    /// Replaces the contents by one object in these forms, best first. Returns the change count of
    /// that write: `changeCount` may have moved on already.
    virtual qint64 write(const QList<PasteboardEntry>& forms) = 0;

    /// Whether the names of owners can be known.
    [[nodiscard]] virtual bool namesPrograms() const { return false; }

    /// Whether to find out the names of owners, which delays each reading a little. Off at first.
    enum class Naming { off, on };

    virtual void setNaming(Naming /*naming*/) {}

    /// Which contents count as orphaned. Some display servers cannot distinguish the end of an
    /// owner from clearing.
    enum class Orphans { ofEndedOwners, orCleared };
    [[nodiscard]] virtual Orphans orphans() const = 0;

    /// The change count of contents that went when their owner exited, if nothing has happened
    /// since. Nothing while there are contents, and, unless `orphans` includes them, after they
    /// were cleared on purpose.
    [[nodiscard]] virtual std::optional<qint64> orphaned() const = 0;

    /// Replaces orphaned contents and returns what `write` does. Returns nothing and changes
    /// nothing if there are none, or somebody has taken the pasteboard since.
    [[nodiscard]] virtual std::optional<qint64> adopt(const QList<PasteboardEntry>& forms) = 0;

    /// Called when a program asks for its contents to be saved and waits for that before it exits.
    /// `changeCount` includes the contents by then. Never called if the session has another
    /// clipboard manager.
    [[nodiscard]] virtual Handle onSaveRequest(std::function<void()> callback) = 0;

    /// Answers all requests that still wait for the contents with that change count. Requests whose
    /// contents are replaced, or that have waited for five seconds, are refused automatically.
    virtual void answerSaveRequests(qint64 count, SaveAnswer answer) = 0;
};

} // namespace ravelo
