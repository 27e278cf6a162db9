#pragma once

#include "base/Handle.h"
#include "base/OwnFile.h"
#include "store/Records.h"

#include <QObject>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace ravelo {

class Scheduler;
class Worker;

/// Reads the store file and decides when it is written: 0.4 s after the last of a burst of saves,
/// and again 30 s after a failure. The worker writes. Main thread.
class StoreSaver : public QObject {
    Q_OBJECT

public:
    struct Contents {
        StoreData data; ///< All but the shelf.
        QList<QList<QUrl>> shelf;
    };

    /// Calls `current` at each save; what changes after that waits for the next one.
    StoreSaver(Scheduler& scheduler, Worker& worker, std::function<Contents()> current);

    /// Call it before the first save. Nothing if the file is missing or unreadable; an unreadable
    /// one is put aside before it is overwritten.
    [[nodiscard]] std::optional<Contents> load(const QString& path,
                                               const OwnFile::Permission& mayWrite);

    void save();

    /// Does not wait for the end of a burst.
    void saveNow();

    /// Writes what is pending or failed, and waits until the worker has nothing left to do.
    void flush();

Q_SIGNALS:
    void ended(const ravelo::SaveOutcome& outcome);

private:
    void write();
    void written(const SaveOutcome& outcome);

    Scheduler& scheduler_;
    Worker& worker_;
    std::function<Contents()> current_;
    std::shared_ptr<OwnFile> file_; ///< Used by the worker only.
    std::optional<Contents> unsaved_;
    Handle pending_;
    Handle retry_;
};

} // namespace ravelo
