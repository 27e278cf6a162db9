#pragma once

#include <QString>

#include <functional>

namespace ravelo {

/// What the user's rules say about a copied text.
struct Verdict {
    bool kept = true;
    QString secret{}; ///< See ClipItem; empty for any other text.

    friend bool operator==(const Verdict&, const Verdict&) = default;
};

/// How a text is judged before it is added.
struct Judging {
    enum class Takes {
        moment, ///< It is called at once.
        longer  ///< It is called on another thread; later copies wait.
    };

    std::function<Verdict(const QString&)> judge{};
    Takes takes = Takes::moment;
    std::function<void(const Verdict&)> judged{}; ///< Main thread, before the text is added.
};

} // namespace ravelo
