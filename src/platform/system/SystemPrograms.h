#pragma once

#include "platform/DetachedJobs.h"
#include "platform/Programs.h"

#include <QProcessEnvironment>

namespace ravelo {

/// Programs in PATH, started in a session of their own.
class SystemPrograms final : public Programs {
public:
    /// `jobs` must outlive this. The programs get `environment`, that of our start: ours now has
    /// settings that Qt reads as long as this program runs.
    SystemPrograms(DetachedJobs& jobs, QProcessEnvironment environment);

    [[nodiscard]] Handle find(const QStringList& names,
                              std::function<void(QByteArray path)> done) override;
    void start(const QByteArray& path, const QList<QByteArray>& arguments) override;

private:
    DetachedJobs& jobs_;
    QList<QByteArray> environment_;
};

} // namespace ravelo
