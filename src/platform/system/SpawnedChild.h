#pragma once

#include "platform/ChildProcess.h"
#include "platform/DetachedJobs.h"

#include <QProcessEnvironment>

namespace ravelo {

/// By posix_spawn(3), and waited for by a thread that nobody waits for. The program's standard
/// streams are /dev/null. Its working directory is an empty folder that only this user can enter:
/// many programs obey what they find where they are started. It is always the same folder, so that
/// programs that remember where they ran remember one place; it is removed at the program's end.
class SpawnedChild final : public ChildProcess {
public:
    /// `jobs` outlives it; `environment` is that of the programs. The folder is made in `parent`,
    /// a folder that no other user can write to.
    SpawnedChild(DetachedJobs& jobs, const QProcessEnvironment& environment, QByteArray parent);

    [[nodiscard]] Handle run(const QByteArray& path, const QList<QByteArray>& arguments,
                             std::function<void()> done) override;

private:
    DetachedJobs& jobs_;
    QList<QByteArray> environment_;
    QByteArray folder_;
};

} // namespace ravelo
