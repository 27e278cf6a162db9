#pragma once

#include "base/Handle.h"
#include "base/OwnFile.h"
#include "base/Result.h"
#include "platform/Answer.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <functional>
#include <memory>

namespace ravelo {

class DetachedJobs;
class ImageDecoder;
class Store;
struct Snippet;

/// Exports the store to a file and imports it, one at a time, without blocking. Main thread.
class Transfers {
    Q_DECLARE_TR_FUNCTIONS(ravelo::Transfers)

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

    /// How many snippets, or why none; for the user.
    using Done = std::function<void(const Result<qsizetype>&)>;

    void exportSnippets(const QString& path, Done done);
    /// Reports how many are new, once they are saved.
    void importSnippets(const QString& path, Done done);

private:
    [[nodiscard]] bool isPossible(const Done& done) const;
    void add(const QList<Snippet>& snippets, const Done& done);

    [[nodiscard]] bool isPossible(const Reply& reply) const;

    Services services_;
    Handle running_;
};

} // namespace ravelo
