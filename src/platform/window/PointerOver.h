#pragma once

#include "base/Listeners.h"

#include <QObject>

#include <functional>

class QWindow;

namespace ravelo {

/// Whether the pointer, with or without a drag, is over a window. Main thread.
class PointerOver final : private QObject {
public:
    /// `window` must outlive it.
    explicit PointerOver(QWindow& window);

    [[nodiscard]] explicit operator bool() const { return hovered_ || dragged_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return listeners_.add(std::move(callback));
    }

    /// For a window that comes under a resting pointer: not every compositor reports that.
    void enter() { set(true, dragged_); }

    /// For a window that is hidden: nobody reports that the pointer has left it.
    void leave() { set(false, false); }

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void set(bool hovered, bool dragged);

    bool hovered_ = false;
    bool dragged_ = false;
    Listeners<> listeners_;
};

} // namespace ravelo
