#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <optional>

namespace ravelo {

/// What one drag offers. Stays valid after the drag has ended or another one has begun: a question
/// that was asked is always answered. Main thread; never blocks.
class DragOffer {
public:
    virtual ~DragOffer() = default;

    /// The data of the first of `types` that the source has; empty if it has none of them or does
    /// not answer in time. The first call asks the source, later ones return its answer; nothing
    /// until it has come. `types` are names of one thing, best first.
    [[nodiscard]] virtual std::optional<QByteArray> data(const QStringList& types) = 0;

    /// Called after an answer has come.
    [[nodiscard]] virtual Handle onAnswer(std::function<void()> callback) = 0;
};

} // namespace ravelo
