#pragma once

#include "base/Handle.h"
#include "base/OwnFile.h"
#include "store/disk/StoreContents.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace ravelo {

class Scheduler;
class Vault;
class Worker;

/// Decides when the store file is written: 0.4 s after the last of a burst of saves, and again 30 s
/// after a failure. The worker writes. Main thread.
class StoreSaver : public QObject {
    Q_OBJECT

public:
    /// Calls `current` at each save; what changes after that waits for the next one.
    StoreSaver(Scheduler& scheduler, Worker& worker, std::shared_ptr<Vault> vault,
               std::function<StoreContents()> current);

    /// Where later saves go; call it before the first. What is there and unreadable is put aside
    /// before it is overwritten.
    void setFile(const QString& path, OwnFile::Contents contents,
                 const OwnFile::Permission& mayWrite);

    /// Drops what is pending, and saves nothing more.
    void stop();

    /// Everything is saved.
    [[nodiscard]] bool isSaved() const { return !unsaved_ && !retry_ && writing_ == 0; }

    void save();

    using Saved = std::function<void(const SaveOutcome&)>;

    /// Saves without waiting for the end of a burst of changes. `saved`, if any, gets the outcome,
    /// after `ended`; it is not called once stopped.
    void saveNow(Saved saved = {});

    /// Writes what is pending or failed, and waits until the worker has nothing left to do.
    void flush();

Q_SIGNALS:
    void ended(const ravelo::SaveOutcome& outcome);

private:
    void write(Saved saved = {});
    void written(const SaveOutcome& outcome);

    Scheduler& scheduler_;
    Worker& worker_;
    std::shared_ptr<Vault> vault_;
    std::function<StoreContents()> current_;
    QString path_;
    std::shared_ptr<OwnFile> file_; ///< Used by the worker only; null once stopped.
    std::optional<StoreContents> unsaved_;
    int writing_ = 0; ///< Saves given to the worker.
    Handle pending_;
    Handle retry_;
};

} // namespace ravelo
