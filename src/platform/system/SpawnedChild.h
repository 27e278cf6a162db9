#pragma once

#include "platform/ChildProcess.h"
#include "platform/DetachedJobs.h"

#include <QProcessEnvironment>

namespace ravelo {

/// By posix_spawn(3); a detached thread waits for the program. Its standard streams are /dev/null.
/// Its working directory is an empty folder that only this user can enter, because many programs
/// obey files in it. The folder is always the same, because some programs remember every folder
/// they ran in, and is removed when the program ends.
class SpawnedChild final : public ChildProcess {
public:
    /// `jobs` outlives it; `environment` is for the programs. `folder` is their working directory:
    /// its contents are deleted, and no other user may have write access to its parent.
    SpawnedChild(DetachedJobs& jobs, const QProcessEnvironment& environment, QByteArray folder);

    [[nodiscard]] Handle run(const QByteArray& path, const QList<QByteArray>& arguments,
                             std::function<void()> done) override;

private:
    DetachedJobs& jobs_;
    QList<QByteArray> environment_;
    QByteArray folder_;
};

} // namespace ravelo
