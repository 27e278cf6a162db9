#pragma once

#include "base/Handle.h"
#include "base/OwnFile.h"
#include "platform/Answer.h"

#include <QString>

#include <functional>
#include <memory>

namespace ravelo {

class DetachedJobs;
class ImageDecoder;
class Store;

/// Exports the store to a file and imports it, one at a time, without blocking. Main thread.
class Transfers {
public:
    using Reply = std::function<void(const Answer&)>;

    struct Services {
        Store& store;
        DetachedJobs& jobs;
        std::shared_ptr<ImageDecoder> decoder;
        OwnFile::Permission mayWrite;
    };

    explicit Transfers(Services services);

    /// `path` is absolute. Answers once the file is on the disk.
    void exportTo(const QString& path, Reply reply);
    /// Answers once everything is saved.
    void importFrom(const QString& path, Reply reply);

private:
    [[nodiscard]] bool isPossible(const Reply& reply) const;

    Services services_;
    Handle running_;
};

} // namespace ravelo
