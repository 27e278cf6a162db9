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

/// Queries the provider for the plan's usage, with Claude Code's access token. The token is used
/// for this request only and renewed by Claude Code itself. Main thread; never waits.
class UsageQuery {
public:
    /// Outlive the query.
    struct Services {
        Scheduler& scheduler;
        DetachedJobs& jobs; ///< For reading files.
        SecretStore& secrets;
        HttpsClient& https;
        ChildProcess& children;
    };

    struct Endpoint {
        QUrl url;
        Seconds timeout;
    };

    /// `otherFolders` are searched for credentials after the usual folder and the keyring.
    /// If there is an `onlyFolder`, nothing else is searched.
    UsageQuery(Services services, QByteArray home, Endpoint endpoint, QByteArrayList otherFolders,
               QByteArray onlyFolder = {});

    struct Outcome {
        std::optional<PlanWindows> windows; ///< None if there was no valid answer.
        /// If the provider refuses so many requests: how long to wait, or zero if it did not say.
        std::optional<Seconds> tooMany;
        bool loggedOut = false; ///< There are no credentials.
    };

    using Done = std::function<void(const Outcome&)>;

    /// In each folder of Claude Code.
    static constexpr QByteArrayView credentialsFile{".credentials.json"};

    /// Calls `done` once, unless this object is destroyed before. One query at a time.
    void queryAPI(Done done);

private:
    using HandleCredentials = std::function<void(const std::optional<Credentials>&)>;

    void readFiles(const QByteArrayList& folders, HandleCredentials handle);
    void askKeyring();
    void useCredentials(const std::optional<Credentials>& credentials);
    void request(const Secret& token);
    void handleAnswer(const std::optional<HttpsAnswer>& answer);
    void renewViaCLI(std::function<void()> then);
    void finish(const Outcome& outcome);

    Services services_;
    QByteArray home_;
    Endpoint endpoint_;
    QByteArrayList otherFolders_;
    QByteArray onlyFolder_;
    Done done_;
    std::optional<Seconds> lastRenew_; ///< Uptime.
    Handle step_;
    Handle renewal_;        ///< As long as the child lives, so that there is only one.
    Handle renewalTimeout_; ///< Stops waiting for the renewal.
    std::function<void()> afterRenewal_;
};

} // namespace ravelo
