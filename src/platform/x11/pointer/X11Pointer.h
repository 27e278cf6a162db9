#pragma once

#include "base/Listeners.h"
#include "platform/Pointer.h"
#include "platform/x11/pointer/RawInput.h"

#include <QPoint>

#include <atomic>
#include <memory>

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

    [[nodiscard]] Handle onPress(std::function<void(std::optional<QPointF>)> callback) override;

    [[nodiscard]] Handle onNextActivity(std::function<void()> wake) override;

private:
    /// Who waits for the next activity, if anybody. Main thread.
    struct Waiting {
        quint64 number = 0; ///< Of the newest question.
        std::function<void()> wake;
    };

    /// On their way to the main thread.
    struct Presses {
        std::atomic<int> pending = 0;
        Listeners<std::optional<PointerSight>> listeners;
    };

    [[nodiscard]] std::optional<QPointF> placeOf(const std::optional<PointerSight>& sight) const;

    Connection& connection_;
    Listener& listener_;
    const Known known_;
    ToLogical toLogical_;
    std::shared_ptr<Presses> presses_ = std::make_shared<Presses>();
    std::shared_ptr<Waiting> waiting_ = std::make_shared<Waiting>();
    std::shared_ptr<RawInput> input_;
    std::optional<PointerSight> seen_; ///< At the last `state`.
};

} // namespace ravelo::x11
