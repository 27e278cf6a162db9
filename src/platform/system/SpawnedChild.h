#pragma once

#include "platform/ChildProcess.h"
#include "platform/DetachedJobs.h"

#include <QProcessEnvironment>

namespace ravelo {

/// By posix_spawn(3), and waited for by a thread that nobody waits for. The program's standard
/// streams are /dev/null. Its working directory is an empty folder that only this user can enter:
/// many programs obey what they find where they are started. It is always the same folder, because
/// some programs keep notes about every folder they ran in. It is removed when the program ends.
class SpawnedChild final : public ChildProcess {
public:
    /// `jobs` outlives it; `environment` is that of the programs. `folder` is where they run: what
    /// is in it is deleted, and no other user may be able to write to the folder above it.
    SpawnedChild(DetachedJobs& jobs, const QProcessEnvironment& environment, QByteArray folder);

    [[nodiscard]] Handle run(const QByteArray& path, const QList<QByteArray>& arguments,
                             std::function<void()> done) override;

private:
    DetachedJobs& jobs_;
    QList<QByteArray> environment_;
    QByteArray folder_;
};

} // namespace ravelo
