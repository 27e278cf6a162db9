#pragma once

#include "platform/DragMonitor.h"
#include "platform/x11/ChangeCounter.h"
#include "platform/x11/DragReads.h"
#include "platform/x11/Notifier.h"

#include <memory>

namespace ravelo::x11 {

/// Drags as the owners of the XdndSelection (XDND 5) begin them. Those of our own windows are none.
class X11DragMonitor final : public DragMonitor {
public:
    /// Before `listener` starts; it must outlive this.
    explicit X11DragMonitor(Listener& listener);

    [[nodiscard]] qint64 changeCount() const override { return counter_->value(); }

    [[nodiscard]] std::optional<QList<QUrl>> files() override;
    [[nodiscard]] std::optional<QByteArray> transferKey() override;
    [[nodiscard]] std::shared_ptr<const DragAnswers> answers() override;

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_->add(std::move(callback));
    }

private:
    /// One drag, as its source was asked and has answered. Main thread.
    struct Drag {
        qint64 count = 0; ///< The change count.
        DragAnswers answers;
        bool filesAsked = false;
        bool keyAsked = false;
    };

    [[nodiscard]] std::shared_ptr<Drag> newest();

    template <typename Answer>
    std::optional<Answer> ask(bool Drag::*asked, std::optional<Answer> DragAnswers::*answer,
                              const QList<QByteArray>& targets, Answer (*read)(const QByteArray&));

    Listener& listener_;
    std::shared_ptr<ChangeCounter> counter_ = std::make_shared<ChangeCounter>();
    std::shared_ptr<Notifier> changes_;
    std::shared_ptr<DragReads> reads_;
    std::shared_ptr<Drag> newest_ = std::make_shared<Drag>();
};

} // namespace ravelo::x11
