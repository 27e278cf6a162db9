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

/// Text on a pasteboard, always UTF-8, whatever names and encodings the owner offers it under.
inline constexpr QLatin1StringView plainTextType("text/plain");

/// The program whose contents are on a pasteboard.
struct PasteboardOwner {
    /// A clipboard manager only passes on what others copied.
    enum class Kind { program, manager };

    quint32 id = 0; ///< The same for all copies of one running program; 0 where unknown.
    Kind kind = Kind::program;
};

/// An owner ended, and its contents went with it.
struct OwnerEnd {
    qint64 changeCount; ///< Of those contents.
    Seconds before;     ///< How long before the present owner came.
};

/// What one owner of the pasteboard offers, as far as it was asked.
struct PasteboardSnapshot {
    /// Everything on offer: MIME types, and marks under their own names. Where text of any kind is
    /// on offer, `plainTextType` stands for all of it.
    QStringList types;

    /// What came back for each type that was asked for; nothing where the owner refused, was too
    /// slow or had more than the adapter takes (64 MiB of an image, 8 MiB of anything else).
    QHash<QString, std::optional<QByteArray>> answers;

    /// For each answer that was more than the adapter takes: its size in bytes, as far as known.
    QHash<QString, qint64> tooLarge = {};

    qint64 changeCount = 0; ///< Of these contents.
    PasteboardOwner owner = {};
    std::optional<OwnerEnd> lastEnd = {}; ///< The last one before this owner, if there was any.
};

/// Tells from what has come back so far which type to ask for next; an empty string ends the
/// reading. A pure function: the adapter calls it on a thread of its own.
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

    /// Called soon after each change that came from elsewhere, where the display server tells of
    /// it. Nobody may rely on it being called at all.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;

    /// Reads what the present owner offers: first the list of types, then what `plan` asks for,
    /// each with a time-out. `done` is called once, later, on the main thread; never where the
    /// owner changed before all was read or the handle was dropped. Costs the main thread nothing,
    /// whatever the owner does.
    [[nodiscard]] virtual Handle read(PasteboardPlan plan,
                                      std::function<void(PasteboardSnapshot)> done) = 0;

    /// Replaces the contents by one object in these forms, best first. Returns the change count of
    /// that write: `changeCount` may have moved on already.
    virtual qint64 write(const QList<PasteboardEntry>& forms) = 0;

    /// The change count of contents that went with their owner's end, where nothing happened since.
    /// Nothing while there are contents, after somebody took them away on purpose, and where the
    /// display server does not tell the one from the other.
    [[nodiscard]] virtual std::optional<qint64> orphaned() const = 0;

    /// Writes in the place of orphaned contents and returns as `write` does. Nothing, with all left
    /// as it is, where there are none or somebody has taken the pasteboard since.
    [[nodiscard]] virtual std::optional<qint64> adopt(const QList<PasteboardEntry>& forms) = 0;

    /// Called when a program asks that the contents be saved, and waits for it before it ends.
    /// The change that brought the contents counts by then. Never called where the session has
    /// another program for this.
    [[nodiscard]] virtual Handle onSaveRequest(std::function<void()> callback) = 0;

    /// Answers all requests that are still waiting. Those whose contents are replaced, or that have
    /// waited for five seconds, are refused without it.
    virtual void answerSaveRequests(SaveAnswer answer) = 0;
};

} // namespace ravelo
