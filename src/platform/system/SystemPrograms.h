#pragma once

#include "platform/DetachedJobs.h"
#include "platform/Programs.h"

namespace ravelo {

/// Programs in PATH, started in a session of their own.
class SystemPrograms final : public Programs {
public:
    /// `jobs` must outlive this.
    explicit SystemPrograms(DetachedJobs& jobs) : jobs_(jobs) {}

    [[nodiscard]] Handle find(const QStringList& names,
                              std::function<void(QByteArray path)> done) override;
    void start(const QByteArray& path, const QList<QByteArray>& arguments) override;

private:
    DetachedJobs& jobs_;
};

} // namespace ravelo
