#include "monitor/UsageQuery.h"

#include "base/Files.h"
#include "platform/ChildProcess.h"
#include "platform/DetachedJobs.h"
#include "platform/SecretStore.h"

#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr double renewBefore = 600; ///< Seconds until the token expires.
constexpr Seconds renewSpacing(1200);
constexpr Seconds maxRenewal(600); ///< No one-character prompt takes that long.
constexpr qint64 maxAnswer = qint64(1) << 20;
constexpr int ok = 200;
constexpr int unauthorized = 401;
constexpr int tooManyRequests = 429;

} // namespace

UsageQuery::UsageQuery(Services services, QByteArray home, Endpoint endpoint,
                       QByteArrayList otherFolders, QByteArray onlyFolder)
    : services_(services),
      home_(std::move(home)),
      endpoint_(std::move(endpoint)),
      otherFolders_(std::move(otherFolders)),
      onlyFolder_(std::move(onlyFolder)) {}

void UsageQuery::queryAPI(Done done) {
    done_ = std::move(done);
    if (!onlyFolder_.isEmpty()) {
        readFiles({onlyFolder_}, [this](const std::optional<Credentials>& credentials) {
            useCredentials(credentials);
        });
        return;
    }
    readFiles({home_ + "/.claude"}, [this](const std::optional<Credentials>& credentials) {
        if (credentials) {
            useCredentials(credentials);
        } else {
            askKeyring();
        }
    });
}

void UsageQuery::readFiles(const QByteArrayList& folders, HandleCredentials handle) {
    auto credentials = std::make_shared<std::optional<Credentials>>();
    step_ = services_.jobs.run(
        [credentials, folders] {
            for (const QByteArray& folder : folders) {
                const Secret file(
                    readFileEnd(folder + '/' + credentialsFile.toByteArray(), maxAnswer)
                        .value_or(QByteArray()));
                *credentials = readCredentials(file.bytes());
                if (*credentials) {
                    break;
                }
            }
        },
        [credentials, handle = std::move(handle)] {
            handle(std::exchange(*credentials, std::nullopt));
        });
}

void UsageQuery::askKeyring() {
    step_ = services_.secrets.find(
        u"Claude Code-credentials"_s, [this](const std::optional<Secret>& secret) {
            if (const auto credentials = secret ? readCredentials(secret->bytes()) : std::nullopt) {
                useCredentials(credentials);
            } else {
                readFiles(otherFolders_, [this](const std::optional<Credentials>& other) {
                    useCredentials(other);
                });
            }
        });
}

void UsageQuery::useCredentials(const std::optional<Credentials>& credentials) {
    if (!credentials) {
        finish({.windows = {}, .tooMany = {}, .loggedOut = true});
        return;
    }
    const double now = services_.scheduler.now().sinceReference + referenceInstant;
    if (credentials->expiresAt && *credentials->expiresAt - now < renewBefore) {
        // The old token is still used this time.
        renewViaCLI([this, token = credentials->accessToken] { request(token); });
    } else {
        request(credentials->accessToken);
    }
}

void UsageQuery::request(const Secret& token) {
    const HttpsRequest request{endpoint_.url,
                               {{"anthropic-beta", "oauth-2025-04-20"}},
                               Secret("Bearer " + token.bytes()),
                               endpoint_.timeout,
                               maxAnswer};
    step_ = services_.https.get(request, [this](const std::optional<HttpsAnswer>& answer) {
        step_.reset(); // Erases the token.
        handleAnswer(answer);
    });
}

void UsageQuery::handleAnswer(const std::optional<HttpsAnswer>& answer) {
    if (!answer) {
        finish({});
    } else if (answer->status == unauthorized) {
        renewViaCLI([this] { finish({}); });
    } else if (answer->status == tooManyRequests) {
        finish({{}, readRetryAfter(answer->retryAfter, services_.scheduler.now())});
    } else {
        finish({answer->status == ok ? readUsageAnswer(answer->body) : std::nullopt, {}});
    }
}

void UsageQuery::renewViaCLI(std::function<void()> then) {
    const Seconds now = services_.scheduler.uptime();
    if (renewal_ || (lastRenew_ && now - *lastRenew_ <= renewSpacing)) {
        then();
        return;
    }
    lastRenew_ = now;
    afterRenewal_ = std::move(then);
    const auto goOn = [this] {
        renewalTimeout_.reset();
        if (const auto next = std::exchange(afterRenewal_, nullptr)) {
            next();
        }
    };
    renewalTimeout_ = services_.scheduler.after(maxRenewal, goOn);
    renewal_ = services_.children.run(
        home_ + "/.local/bin/claude",
        {"-p", ".", "--model", "claude-haiku-4-5-20251001", "--max-turns", "1"}, [this, goOn] {
            renewal_.reset();
            goOn();
        });
}

void UsageQuery::finish(const Outcome& outcome) {
    std::exchange(done_, nullptr)(outcome);
}

} // namespace ravelo
