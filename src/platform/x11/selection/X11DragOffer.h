#pragma once

#include "platform/DragOffer.h"
#include "platform/x11/connection/MainThreadNotifier.h"
#include "platform/x11/selection/DragReads.h"
#include "platform/x11/selection/SelectionWatch.h"

#include <map>
#include <memory>

namespace ravelo::x11 {

/// What the source of one drag answers to conversions of the XdndSelection. Main thread.
class X11DragOffer final : public DragOffer, public std::enable_shared_from_this<X11DragOffer> {
public:
    struct Source {
        Listener& listener; ///< Must outlive the offer.
        std::shared_ptr<ChangeCounter> counter;
        std::shared_ptr<MainThreadNotifier> changes;
        std::weak_ptr<DragReads> reads; ///< Weak: its questions hold the offer.
    };

    /// `count` is the change count of the drag. Held by a shared pointer.
    X11DragOffer(qint64 count, Source source) : count_(count), source_(std::move(source)) {}

    [[nodiscard]] qint64 count() const { return count_; }

    [[nodiscard]] std::optional<QByteArray> data(const QStringList& types) override;

    [[nodiscard]] Handle onAnswer(std::function<void()> callback) override {
        return source_.changes->add(std::move(callback));
    }

private:
    void ask(const QStringList& types);

    const qint64 count_;
    Source source_;
    std::map<QStringList, std::optional<QByteArray>> answers_; ///< What was asked.
};

} // namespace ravelo::x11
