#pragma once

#include "platform/Answer.h"

#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace ravelo {

/// Makes one program out of all its starts in a user's session, and lets the others ask the one
/// that runs: by a name on the session bus, or by a lock file and a local socket where there is no
/// bus. Neither lets another user in: the bus daemon refuses them, and the socket is the user's
/// alone (0600) in a folder of the same kind. Main thread.
class SingleInstance {
public:
    SingleInstance() = default;
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    virtual ~SingleInstance() = default;

    /// Becomes the one of this session; nothing where there is one already.
    [[nodiscard]] static std::unique_ptr<SingleInstance> claim();

    /// Asks the one that runs, and waits for its answer a few seconds at most; where it gives none,
    /// the answer is that. Nothing where none runs.
    [[nodiscard]] static std::optional<Answer> ask(const QStringList& request);

    /// What `ask` gives for one that runs but keeps silent.
    [[nodiscard]] static Answer silence();

    /// Answers what other starts ask, from the event loop. A request is a list of words, any text.
    std::function<Answer(const QStringList& request)> onRequest;

    /// The answer, also before somebody answers.
    [[nodiscard]] Answer answer(const QStringList& request) const;

protected:
    static constexpr std::chrono::seconds answerTime{5};
};

} // namespace ravelo
