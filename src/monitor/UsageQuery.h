#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"
#include "monitor/UsageReaders.h"
#include "platform/HttpsClient.h"

#include <QUrl>

#include <functional>
#include <optional>

namespace ravelo {

class ChildProcess;
class DetachedJobs;
class SecretStore;

/// Asks the provider how much of the plan is used, in the name of the user: with the access token
/// that Claude Code keeps, which goes nowhere but into this one request, and is renewed by Claude
/// Code itself. Main thread; nothing here waits.
class UsageQuery {
public:
    /// All of it outlives the query.
    struct Services {
        Scheduler& scheduler;
        DetachedJobs& jobs; ///< For what looks at files.
        SecretStore& secrets;
        HttpsClient& https;
        ChildProcess& children;
    };

    struct Endpoint {
        QUrl url;
        Seconds timeOut;
    };

    UsageQuery(Services services, QByteArray home, Endpoint endpoint);

    using Done = std::function<void(std::optional<PlanWindows>)>;

    /// Calls `done` once, with nothing where there is no answer that makes sense. One query at a
    /// time; not told any more when this object is gone.
    void queryAPI(Done done);

private:
    void takeFile(const std::optional<QByteArray>& bytes);
    void useCredentials(const std::optional<Credentials>& credentials);
    void request(const QByteArray& token);
    void takeAnswer(const std::optional<HttpsAnswer>& answer);
    void renewViaCLI(std::function<void()> then);
    void finish(const std::optional<PlanWindows>& windows);

    Services services_;
    QByteArray home_;
    Endpoint endpoint_;
    Done done_;
    std::optional<Seconds> lastRenew_; ///< Uptime.
    Handle step_;
    Handle renewal_;  ///< For as long as the child lives: never are there two.
    Handle patience_; ///< With a renewal.
    std::function<void()> afterRenewal_;
};

} // namespace ravelo
