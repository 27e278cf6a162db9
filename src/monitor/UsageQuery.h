#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"
#include "monitor/UsageReaders.h"
#include "platform/HttpsClient.h"

#include <QByteArrayList>
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
        Seconds timeout;
    };

    /// `otherFolders` are looked in for credentials after the usual folder and the keyring.
    UsageQuery(Services services, QByteArray home, Endpoint endpoint, QByteArrayList otherFolders);

    struct Outcome {
        std::optional<PlanWindows> windows; ///< None if there is no answer that makes sense.
        /// If the provider finds that it is asked too often: how long it wants to be left alone,
        /// zero if it does not say.
        std::optional<Seconds> tooMany;
    };

    using Done = std::function<void(const Outcome&)>;

    /// Calls `done` once. One query at a time; not told any more when this object is gone.
    void queryAPI(Done done);

private:
    using TakeCredentials = std::function<void(const std::optional<Credentials>&)>;

    void readFiles(const QByteArrayList& folders, TakeCredentials take);
    void askKeyring();
    void useCredentials(const std::optional<Credentials>& credentials);
    void request(const Secret& token);
    void takeAnswer(const std::optional<HttpsAnswer>& answer);
    void renewViaCLI(std::function<void()> then);
    void finish(const Outcome& outcome);

    Services services_;
    QByteArray home_;
    Endpoint endpoint_;
    QByteArrayList otherFolders_;
    Done done_;
    std::optional<Seconds> lastRenew_; ///< Uptime.
    Handle step_;
    Handle renewal_;  ///< For as long as the child lives: never are there two.
    Handle patience_; ///< With a renewal.
    std::function<void()> afterRenewal_;
};

} // namespace ravelo
