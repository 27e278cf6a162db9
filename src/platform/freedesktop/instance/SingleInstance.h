#pragma once

#include "platform/Answer.h"

#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace ravelo {

/// Runs only one instance per session and lets others send it requests: by a name on the session
/// bus or, without a bus, by a lock file and a local socket. Other users have no access: the bus
/// daemon refuses them, and socket (0600) and folder (0700) are for the user only. Main thread.
class SingleInstance {
public:
    static constexpr std::chrono::seconds answerTime{5}; ///< For most requests.

    SingleInstance() = default;
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    virtual ~SingleInstance() = default;

    /// Becomes the instance of this session; nothing if there is one already.
    [[nodiscard]] static std::unique_ptr<SingleInstance> claim();

    /// Sends a request to the running instance and waits for its answer; `silence` if none comes in
    /// time. Nothing if none runs.
    [[nodiscard]] static std::optional<Answer> ask(const QStringList& request,
                                                   const QByteArray& activationToken,
                                                   std::chrono::milliseconds timeout);

    /// The result of `ask` if the running instance does not answer.
    [[nodiscard]] static Answer silence();

    /// Answers requests, from the event loop. A request is a list of words, any text. The token
    /// (xdg-activation-v1, or a startup-notification ID) is empty if the sender has none.
    std::function<Answer(const QStringList& request, const QByteArray& activationToken)> onRequest;

    using Reply = std::function<void(const Answer&)>;

    /// Asked first: whether it is one of the requests that take time. Those call `reply` once,
    /// later or at once.
    std::function<bool(const QStringList& request, const Reply& reply)> onLongRequest;

    /// Replies, also if `onRequest` is not set.
    void answer(const QStringList& request, const QByteArray& activationToken,
                const Reply& reply) const;
};

} // namespace ravelo
