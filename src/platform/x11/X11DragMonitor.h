#pragma once

#include "platform/DragMonitor.h"
#include "platform/x11/ChangeCounter.h"
#include "platform/x11/Notifier.h"
#include "platform/x11/SelectionWatch.h"

#include <QList>
#include <QUrl>

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

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_->add(std::move(callback));
    }

private:
    /// What the source of one drag was asked and has answered. Main thread.
    template <typename Answer>
    struct Question {
        qint64 drag = 0; ///< The change count of the drag.
        std::optional<Answer> answer;
    };

    template <typename Answer, typename Read>
    std::optional<Answer> ask(const std::shared_ptr<Question<Answer>>& question,
                              const QList<QByteArray>& targets, Read read);

    Listener& listener_;
    std::shared_ptr<ChangeCounter> counter_ = std::make_shared<ChangeCounter>();
    std::shared_ptr<Notifier> changes_;
    std::shared_ptr<SelectionWatch> watch_;
    std::shared_ptr<Question<QList<QUrl>>> files_ = std::make_shared<Question<QList<QUrl>>>();
    std::shared_ptr<Question<QByteArray>> key_ = std::make_shared<Question<QByteArray>>();
};

} // namespace ravelo::x11
