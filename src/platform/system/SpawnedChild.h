#pragma once

#include "platform/ChildProcess.h"
#include "platform/DetachedJobs.h"

#include <QProcessEnvironment>

namespace ravelo {

/// By posix_spawn(3), and waited for by a thread that nobody waits for. The program's standard
/// streams are pipes, to which nothing is ever written and of which nothing is read.
class SpawnedChild final : public ChildProcess {
public:
    /// `jobs` outlives it; `environment` is that of the programs.
    SpawnedChild(DetachedJobs& jobs, const QProcessEnvironment& environment);

    [[nodiscard]] Handle run(const QByteArray& path, const QList<QByteArray>& arguments,
                             std::function<void()> done) override;

private:
    DetachedJobs& jobs_;
    QList<QByteArray> environment_;
};

} // namespace ravelo
