#pragma once

#include "base/Descriptor.h"

#include <QByteArray>

#include <chrono>
#include <functional>
#include <list>
#include <map>
#include <optional>
#include <vector>

#include <poll.h>
#include <tl/expected.hpp>

namespace ravelo::wayland {

using TimePoint = std::chrono::steady_clock::time_point;

struct PipeFailure {
    enum Reason { broken, tooSlow, tooLarge };

    Reason reason;
    qint64 bytes = 0; ///< How many came.
};

using PipeResult = tl::expected<QByteArray, PipeFailure>;

/// The pipes through which clipboard and drag contents come and go. Never blocks, and gives up on
/// a peer that makes no progress. For one thread, which polls the descriptors and then calls
/// `serve`.
class Pipes {
public:
    using Key = quint64;

    /// Reads to the end, at most `limit` bytes; a peer has 1.5 s for each piece. `done` may begin
    /// other reads.
    Key read(Descriptor from, qsizetype limit, std::function<void(PipeResult)> done);

    /// `done` is not called.
    void cancel(Key key) { reads_.erase(key); }

    /// Writes everything and closes `to`; a peer has 5 s for each piece.
    void write(Descriptor to, QByteArray bytes);

    void appendTo(std::vector<pollfd>& waits) const;

    /// When to call `serve` even if no descriptor is ready.
    [[nodiscard]] std::optional<TimePoint> deadline() const;

    void serve();

private:
    struct Read {
        Descriptor from;
        qsizetype limit;
        std::function<void(PipeResult)> done;
        QByteArray bytes;
        TimePoint deadline;
    };

    struct Write {
        Descriptor to;
        QByteArray bytes;
        qsizetype written = 0;
        TimePoint deadline;
    };

    [[nodiscard]] static std::optional<PipeResult> progress(Read& read);
    [[nodiscard]] static bool isDone(Write& write);

    std::map<Key, Read> reads_;
    std::list<Write> writes_;
    Key nextKey_ = 1;
};

/// A pipe whose reading end does not block; the other one does, as programs expect. Both are none
/// if there are no descriptors left.
struct Pipe {
    Pipe();

    Descriptor readEnd;
    Descriptor writeEnd;
};

} // namespace ravelo::wayland
