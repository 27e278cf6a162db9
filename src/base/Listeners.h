#pragma once

#include "base/Handle.h"

#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace ravelo {

/// The callbacks for one kind of event. Callbacks may be added and dropped while they are being
/// called; a dropped one is not called again. Handles may outlive the list.
template <typename... Args>
class Listeners {
public:
    using Callback = std::function<void(Args...)>;

    [[nodiscard]] Handle add(Callback callback) {
        const int key = nextKey_++;
        callbacks_->emplace(key, std::move(callback));
        return Handle([list = std::weak_ptr(callbacks_), key] {
            if (const auto alive = list.lock()) {
                alive->erase(key);
            }
        });
    }

    void notify(Args... args) const {
        const auto list = callbacks_; // A callback may destroy the owner of this list.
        const auto snapshot = *list;
        for (const auto& [key, callback] : snapshot) {
            if (list->contains(key)) {
                callback(args...);
            }
        }
    }

private:
    std::shared_ptr<std::map<int, Callback>> callbacks_ =
        std::make_shared<std::map<int, Callback>>();
    int nextKey_ = 0;
};

} // namespace ravelo
