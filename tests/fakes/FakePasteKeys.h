#pragma once

#include "base/Listeners.h"
#include "platform/GlobalShortcut.h"
#include "platform/PasteKeys.h"

namespace ravelo {

/// Records what is typed, and forgets to check anything itself.
class FakePasteKeys final : public PasteKeys {
public:
    [[nodiscard]] bool isPossible() const override { return possible; }

    [[nodiscard]] std::optional<Target> target() override { return next; }

    [[nodiscard]] Readiness readiness(const Target& /*target*/) override { return ready; }

    void press(const Target& target, PasteChord chord) override {
        pressed.push_back({target.id, chord});
    }

    [[nodiscard]] TypingPermission permission() const override { return allowed; }

    [[nodiscard]] Handle onPermissionChange(std::function<void()> callback) override {
        return permissionChanges.add(std::move(callback));
    }

    void forgetRefusal() override { become(TypingPermission::unasked); }

    void become(TypingPermission now) {
        allowed = now;
        permissionChanges.notify();
    }

    struct Press {
        quint64 target;
        PasteChord chord;

        friend bool operator==(const Press&, const Press&) = default;
    };

    bool possible = true;
    std::optional<Target> next = Target{7, {QStringLiteral("mousepad")}};
    Readiness ready{true, true, true};
    std::vector<Press> pressed;
    TypingPermission allowed = TypingPermission::notNeeded;
    Listeners<> permissionChanges;
};

class FakeGlobalShortcut final : public GlobalShortcut {
public:
    [[nodiscard]] State state() const override { return state_; }

    [[nodiscard]] QString description() const override { return called; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_.add(std::move(callback));
    }

    void set(const std::optional<KeyCombination>& now) override {
        keys = now;
        become(now ? State::registered : State::none);
    }

    [[nodiscard]] Handle suspend() override {
        suspended = true;
        return Handle([this] { suspended = false; });
    }

    [[nodiscard]] Handle onPress(std::function<void(const QByteArray& token)> callback) override {
        return presses.add(std::move(callback));
    }

    void become(State state) {
        state_ = state;
        changes_.notify();
    }

    std::optional<KeyCombination> keys;
    QString called; ///< By the desktop.
    bool suspended = false;
    Listeners<const QByteArray&> presses;

private:
    State state_ = State::none;
    Listeners<> changes_;
};

} // namespace ravelo
