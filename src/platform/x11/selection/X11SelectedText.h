#pragma once

#include "platform/SelectedText.h"
#include "platform/x11/connection/Listener.h"
#include "platform/x11/connection/MainThreadNotifier.h"
#include "platform/x11/selection/SelectionWatch.h"

#include <map>
#include <memory>

namespace ravelo::x11 {

/// The PRIMARY selection of other programs.
class X11SelectedText final : public SelectedText {
public:
    /// Before `listener` starts; it must outlive this.
    explicit X11SelectedText(Listener& listener);

    void setWatch(Watch watch) override;

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_->add(std::move(callback));
    }

    [[nodiscard]] Handle read(PasteboardPlan plan,
                              std::function<void(PasteboardSnapshot)> done) override;

private:
    using Reads = std::map<SelectionReader::Key, std::function<void(PasteboardSnapshot)>>;

    Listener& listener_;
    OwnClient clients_;
    std::shared_ptr<MainThreadNotifier> changes_;
    std::shared_ptr<xcb_window_t> owner_; ///< The listener's thread only.
    std::shared_ptr<SelectionWatch> watch_;
    std::shared_ptr<Reads> reads_ = std::make_shared<Reads>();
    SelectionReader::Key nextKey_ = 0;
};

} // namespace ravelo::x11
