#pragma once

#include "base/Listeners.h"
#include "platform/DragMonitor.h"
#include "platform/gnome/Channel.h"
#include "platform/gnome/Transfers.h"

namespace ravelo::gnome {

class GnomeDragOffer;

/// The drags that the extension reports, except for those out of our own windows.
class GnomeDragMonitor final : public DragMonitor {
public:
    /// Both must outlive it.
    GnomeDragMonitor(Channel& channel, Transfers& transfers);

    [[nodiscard]] qint64 changeCount() const override { return count_; }

    [[nodiscard]] std::shared_ptr<DragOffer> newest() override;

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_.add(std::move(callback));
    }

    /// Whether another program's drag is on its way; `onChange` reports that, too.
    [[nodiscard]] bool isUnderWay() const { return underWay_; }

private:
    void began(const DragBegan& report);
    void ended();

    Transfers& transfers_;
    qint64 count_ = 0;
    bool underWay_ = false;
    std::shared_ptr<GnomeDragOffer> newest_;
    Listeners<> changes_;
    Handle answer_;
    Handle deliveries_;
    Handle ups_;
};

} // namespace ravelo::gnome
