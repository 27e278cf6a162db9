#pragma once

#include "base/Handle.h"
#include "base/OwnFile.h"
#include "base/Result.h"
#include "platform/Answer.h"
#include "store/transfer/Transfer.h"

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace ravelo {

class DetachedJobs;
class ImageDecoder;
class Store;

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
    /// Answers once everything is saved. Images that cannot be read are left out of both, and
    /// reported.
    void importFrom(const QString& path, Reply reply);

    /// How many snippets, or why none; for the user.
    using Done = std::function<void(const Result<qsizetype>&)>;

    void exportSnippets(const QString& path, Done done);
    /// Reports how many are new, once they are saved.
    void importSnippets(const QString& path, Done done);

private:
    enum class Obstacle { running, locked };
    using Imported = Result<Import>;

    [[nodiscard]] std::optional<Obstacle> obstacle() const;
    [[nodiscard]] static Answer answerTo(Obstacle obstacle);
    [[nodiscard]] static QString textOf(Obstacle obstacle); ///< For the user.
    void import(std::function<Imported()> read, std::function<void(const Imported&)> add);
    void warnOfLongHistory(Answer& answer) const;
    void add(const StoreContents& contents, const Done& done);

    Services services_;
    Handle importing_; ///< Held until what was read is added.
    Handle running_;
};

} // namespace ravelo
