#pragma once

#include "base/Handle.h"
#include "store/images/CopiedFile.h"

#include <QByteArray>

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace ravelo {

class DetachedJobs;
class Scheduler;
class Worker;

/// Copies on their way to the history, in the order of copying, however long each takes: a file is
/// read, an image converted (one at a time), the worker writes it, then the history gets it. Main
/// thread.
class Captures {
public:
    struct Services {
        Scheduler& scheduler;
        Worker& worker;
        DetachedJobs& files;       ///< To read copied files.
        DetachedJobs& conversions; ///< If it drops one, the worker does it.
    };

    struct Work {
        std::function<void(const CopiedContents&)>
            convert;                 ///< On another thread, with the file's contents.
        std::function<void()> write; ///< On the worker, after that.
        std::function<void()> end;   ///< On the main thread.
    };

    explicit Captures(Services services) : services_(services) {}

    /// No capture is in progress.
    [[nodiscard]] bool isEmpty() const { return waiting_.empty() && *working_ == 0; }

    /// Reads the file at `path`, unless that is empty, as `readCopiedFile` does, then does the
    /// work; any step may be missing. `end` may be called after this object is gone.
    void add(const QByteArray& path, Work work);

    /// Drops what the worker does not have yet; its `end` is not called.
    void drop() { waiting_.clear(); }

    /// Gives everything to the worker, without waiting for files that are still being read. For the
    /// end of the program.
    void handOver();

private:
    class Conversion;

    struct Capture {
        Work work;
        std::optional<CopiedContents> file; ///< Set once it is read or given up.
        Handle reading;
        std::shared_ptr<Conversion> conversion; ///< Once started.
        Handle converting;
    };

    void passOn();
    void passToWorker(Capture capture);

    Services services_;
    std::map<int, Capture> waiting_; ///< By order of copying; the first is read or converted.
    int next_ = 0;
    std::shared_ptr<int> working_ = std::make_shared<int>(0); ///< Given to the worker.
};

} // namespace ravelo
