#pragma once

#include "platform/wayland/clipboard/ChangeCount.h"
#include "platform/wayland/clipboard/ClipboardThread.h"
#include "platform/wayland/clipboard/OfferReading.h"

#include <map>

namespace ravelo::wayland {

/// What is on the clipboard, who reads it, and what we offer. For the clipboard's thread.
class Selection {
public:
    using Key = quint64;

    /// Before `thread` starts, which keeps it until it ends. `changed` is called after a change by
    /// somebody else.
    [[nodiscard]] static std::shared_ptr<Selection> create(ClipboardThread& thread,
                                                           std::shared_ptr<ChangeCount> count,
                                                           std::function<void()> changed);

    /// Reads the contents that were counted as `count`, or does nothing if there are newer ones.
    /// They may be unfinished when others come: then `done` is not called.
    void read(Key key, qint64 count, PasteboardPlan plan, OfferReading::Done done);

    void cancel(Key key) { readings_.erase(key); }

    enum class Over { anything, nothing };

    /// Does the write that was counted as `count`. Over `nothing`: gives up if somebody has copied.
    void write(qint64 count, const QList<PasteboardEntry>& forms, Over over);

private:
    Selection(ClipboardThread& thread, std::shared_ptr<ChangeCount> count,
              std::function<void()> changed);
    void update(const std::optional<DataControl::Types>& types);
    void send(qint64 offer, const QByteArray& type, Descriptor into);
    void lose(qint64 offer);
    void refuse(qint64 count);

    ClipboardThread& thread_;
    std::shared_ptr<ChangeCount> count_;
    std::function<void()> changed_;
    const QByteArray mark_; ///< A type that only our own offers have.
    std::optional<DataControl::Types> types_;
    bool isOwn_ = false;
    bool isStarted_ = false;                                    ///< Changes count.
    std::map<qint64, std::map<QByteArray, QByteArray>> offers_; ///< Ours, by their counts.
    std::map<Key, std::shared_ptr<OfferReading>> readings_;
};

} // namespace ravelo::wayland
