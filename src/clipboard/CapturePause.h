#pragma once

#include "base/Scheduler.h"

#include <QObject>

#include <optional>

namespace ravelo {

class Preferences;

/// Whether copies are captured now. A pause is a preference, so it survives a restart. Main thread.
class CapturePause : public QObject {
    Q_OBJECT

public:
    /// Both outlive this.
    CapturePause(Preferences& preferences, Scheduler& scheduler);

    /// Replaces an earlier pause. Without a length it lasts until `resume`.
    void pause(std::optional<Seconds> length);
    void resume();

    /// The next copy is not captured if it comes within 30 seconds.
    void ignoreNext();

    [[nodiscard]] bool isPaused() const { return pause_.has_value(); }

    /// When the pause ends; nothing if only `resume` ends it, or there is none.
    [[nodiscard]] std::optional<Date> until() const;

    /// How long the pause lasts from its beginning; nothing as above.
    [[nodiscard]] std::optional<Seconds> length() const;

    [[nodiscard]] Seconds remaining() const; ///< 0 without an end.

    /// Whether to ignore what is selected now.
    [[nodiscard]] bool ignoresSelection() const;

    /// Whether to ignore the copy that has just come. Uses up `ignoreNext`.
    [[nodiscard]] bool ignoresCopy();

Q_SIGNALS:
    void changed(); ///< Of a pause.

private:
    struct Timed {
        Date until;
        Seconds length;
    };

    struct Pause {
        std::optional<Timed> timed;
    };

    void awaitEnd();
    void set(std::optional<Pause> pause);

    Preferences& preferences_;
    Scheduler& scheduler_;
    std::optional<Pause> pause_;
    std::optional<Seconds> ignoringUntil_; ///< Uptime.
    Handle end_;
};

} // namespace ravelo
