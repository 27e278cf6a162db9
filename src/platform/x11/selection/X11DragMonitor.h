#pragma once

#include "platform/DragMonitor.h"
#include "platform/x11/connection/MainThreadNotifier.h"
#include "platform/x11/selection/DragReads.h"
#include "platform/x11/selection/SelectionWatch.h"

#include <memory>

namespace ravelo::x11 {

class X11DragOffer;

/// Drags as the owners of the XdndSelection (XDND 5) begin them. Those of our own windows are not
/// counted.
class X11DragMonitor final : public DragMonitor {
public:
    /// Before `listener` starts; it must outlive this.
    explicit X11DragMonitor(Listener& listener);

    [[nodiscard]] qint64 changeCount() const override { return counter_->value(); }

    [[nodiscard]] std::shared_ptr<DragOffer> newest() override;

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_->add(std::move(callback));
    }

private:
    Listener& listener_;
    std::shared_ptr<ChangeCounter> counter_ = std::make_shared<ChangeCounter>();
    std::shared_ptr<MainThreadNotifier> changes_;
    std::shared_ptr<DragReads> reads_;
    std::shared_ptr<X11DragOffer> newest_;
};

} // namespace ravelo::x11
