#pragma once

#include "platform/Pointer.h"
#include "platform/x11/connection/Notifier.h"
#include "platform/x11/pointer/RawInput.h"

#include <QPoint>

namespace ravelo::x11 {

/// The core pointer. Queried on the main thread's connection; events come on the listener's.
class X11Pointer final : public Pointer {
public:
    /// Where the server knows the pointer's position. XWayland knows it over X11 windows only and
    /// reports the last known one elsewhere.
    enum class Known { everywhere, overX11Windows };

    /// From the server's pixels to global logical ones.
    using ToLogical = std::function<QPointF(QPoint)>;

    /// Before `listener` starts; both must outlive this.
    X11Pointer(Connection& connection, Listener& listener, Known known, ToLogical toLogical);

    [[nodiscard]] PointerState state() override;
    [[nodiscard]] bool isOverOwnWindow() override;

    [[nodiscard]] Handle onPress(std::function<void()> callback) override {
        return presses_->add(std::move(callback));
    }

    [[nodiscard]] Handle onNextActivity(std::function<void()> wake) override;

private:
    /// Who waits for the next activity, if anybody. Main thread.
    struct Waiting {
        quint64 number = 0; ///< Of the newest question.
        std::function<void()> wake;
    };

    Connection& connection_;
    Listener& listener_;
    const Known known_;
    ToLogical toLogical_;
    std::shared_ptr<Notifier> presses_;
    std::shared_ptr<Waiting> waiting_ = std::make_shared<Waiting>();
    std::shared_ptr<RawInput> input_;
    std::optional<PointerSight> seen_; ///< At the last `state`.
};

} // namespace ravelo::x11
