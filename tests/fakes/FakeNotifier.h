#pragma once

#include "platform/Notifier.h"

#include <utility>

namespace ravelo {

/// Records what is shown.
class FakeNotifier final : public Notifier {
public:
    void show(const Notification& notification) override { shown.append(notification); }

    [[nodiscard]] Handle look(std::function<void(bool available)> done) override {
        done(available);
        return {};
    }

    /// The titles since the last call.
    [[nodiscard]] QStringList titles() {
        QStringList titles;
        for (const Notification& notification : std::exchange(shown, {})) {
            titles += notification.title;
        }
        return titles;
    }

    QList<Notification> shown;
    bool available = true;
};

} // namespace ravelo
