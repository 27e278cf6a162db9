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
/// copied file is read, then the worker writes an image, then the history gets it. Main thread.
class Captures {
public:
    struct Services {
        Scheduler& scheduler;
        Worker& worker;
        DetachedJobs& jobs;
    };

    explicit Captures(Services services) : services_(services) {}

    /// Nothing is on its way.
    [[nodiscard]] bool isEmpty() const { return waiting_.empty() && *working_ == 0; }

    /// Reads the file at `path`, unless that is empty, as `readCopiedFile` does, then runs `job`
    /// with its contents on the worker, then `end` on the main thread. `end` may come after this
    /// object is gone.
    void add(const QByteArray& path, std::function<void(const CopiedContents&)> job,
             std::function<void()> end);

    /// Goes on without the files that are not read yet. For the end of the program.
    void stopReading();

private:
    struct Capture {
        std::function<void(const CopiedContents&)> job;
        std::function<void()> end;
        std::optional<CopiedContents> file; ///< Once it need not be waited for any more.
        Handle reading;
    };

    void passOn();

    Services services_;
    std::map<int, Capture> waiting_; ///< By order of copying; the first is still being read.
    int next_ = 0;
    std::shared_ptr<int> working_ = std::make_shared<int>(0); ///< How many the worker has.
};

} // namespace ravelo
