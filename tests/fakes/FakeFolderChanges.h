#pragma once

#include "platform/FolderChanges.h"

#include <memory>
#include <utility>

namespace ravelo {

/// Reports what the script says; without one it cannot watch anything.
class FakeFolderChanges final : public FolderChanges {
public:
    struct Script {
        bool watches = true;
        Changes next;
    };

    explicit FakeFolderChanges(std::shared_ptr<Script> script = noWatching())
        : script_(std::move(script)) {}

    [[nodiscard]] bool watch(const QByteArray& /*folder*/, What /*what*/) override {
        return script_->watches;
    }

    void unwatch(const QByteArray& /*folder*/) override {}

    [[nodiscard]] Changes take() override { return std::exchange(script_->next, {}); }

    /// As if something changed all the time.
    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        callback();
        return {};
    }

    [[nodiscard]] static std::shared_ptr<Script> noWatching() {
        return std::make_shared<Script>(Script{.watches = false, .next = {}});
    }

private:
    std::shared_ptr<Script> script_;
};

} // namespace ravelo
