#pragma once

#include "base/Handle.h"
#include "store/CopiedFile.h"

#include <QByteArray>

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace ravelo {

class DetachedJobs;
class Scheduler;
class Worker;

/// What was copied and is not in the history yet, in the order of copying, whatever each takes: a
/// copied file is read, an image converted, one at a time, then the worker writes it, then the
/// history gets it. Main thread.
class Captures {
public:
    struct Services {
        Scheduler& scheduler;
        Worker& worker;
        DetachedJobs& files;       ///< To read copied files.
        DetachedJobs& conversions; ///< If one is left out, the worker does it.
    };

    struct Work {
        std::function<void(const CopiedContents&)> convert; ///< Detached, with the file's contents.
        std::function<void()> write;                        ///< On the worker, after that.
        std::function<void()> end;                          ///< On the main thread.
    };

    explicit Captures(Services services) : services_(services) {}

    /// Nothing is on its way.
    [[nodiscard]] bool isEmpty() const { return waiting_.empty() && *working_ == 0; }

    /// Reads the file at `path`, unless that is empty, as `readCopiedFile` does, and then does the
    /// work. What is missing of it is left out. Its end may come after this object is gone.
    void add(const QByteArray& path, Work work);

    /// Drops all that the worker does not have yet; its end does not come.
    void drop() { waiting_.clear(); }

    /// Gives everything to the worker, without the files that are not read yet. For the end of the
    /// program.
    void handOver();

private:
    class Conversion;

    struct Capture {
        Work work;
        std::optional<CopiedContents> file; ///< Once it need not be waited for any more.
        Handle reading;
        std::shared_ptr<Conversion> conversion; ///< Once it has begun.
        Handle converting;
    };

    void passOn();
    void passToWorker(Capture capture);

    Services services_;
    std::map<int, Capture> waiting_; ///< By order of copying; the first is read or converted.
    int next_ = 0;
    std::shared_ptr<int> working_ = std::make_shared<int>(0); ///< How many the worker has.
};

} // namespace ravelo
