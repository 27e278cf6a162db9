#pragma once

#include "base/Descriptor.h"
#include "platform/gnome/Channel.h"

#include <QByteArray>
#include <QObject>

#include <list>
#include <memory>
#include <optional>

namespace ravelo::gnome {

/// Ends the waiting of another thread, once and for good.
class Cancellation {
public:
    Cancellation();

    /// Any thread.
    void cancel();

    /// Readable once it is cancelled.
    [[nodiscard]] int descriptor() const { return event_.number(); }

private:
    Descriptor event_;
};

/// What a program gave.
struct Transferred {
    std::optional<QByteArray> bytes; ///< Nothing if it refused, was too slow or gave too much.
    qint64 tooLarge = 0;             ///< How much came before it was given up as too much.
};

/// Fetches contents of selections through the extension: the program that has them writes to a
/// descriptor that is read on the asking thread.
class Transfers final : public QObject {
public:
    struct Wanted {
        Selection of;
        quint32 serial; ///< Of the contents, as reported.
        QByteArray type;
        qsizetype cap; ///< Bytes.
    };

    /// Main thread. `channel` must outlive this.
    explicit Transfers(Channel& channel);

    /// Waits for the contents, for max. 1.5 s at a time in which nothing comes. Any thread except
    /// for the main one; this must live until it returns.
    [[nodiscard]] Transferred fetch(const Wanted& wanted, const Cancellation& cancellation);

private:
    struct Slot;

    void ask(const Wanted& wanted, const std::shared_ptr<Slot>& slot);
    void given(const Given& given, Descriptor& descriptor);

    Channel& channel_;
    std::list<std::pair<Wanted, std::weak_ptr<Slot>>> waiting_;
    Handle deliveries_;
};

} // namespace ravelo::gnome
