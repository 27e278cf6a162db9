#pragma once

#include "platform/PasteKeys.h"
#include "platform/x11/keys/KeyMap.h"
#include "platform/x11/window/InputFocus.h"

namespace ravelo::x11 {

/// Types by the XTEST extension. On the main thread's connection.
class X11PasteKeys final : public PasteKeys {
public:
    /// Both must outlive it.
    X11PasteKeys(Connection& connection, InputFocus& focus);

    [[nodiscard]] bool isPossible() const override { return hasXTest_; }

    [[nodiscard]] std::optional<Target> target() override;
    [[nodiscard]] Readiness readiness(const Target& target) override;

    /// Grabs the server, so that nothing changes between the check and the keys. Types nothing
    /// while another program has grabbed the keyboard.
    void press(const Target& target, PasteChord chord) override;

private:
    [[nodiscard]] Readiness readiness(const Target& target, const KeyMap& keys);
    [[nodiscard]] QStringList namesOf(xcb_window_t window);
    void type(const KeyMap& keys, uint32_t modifier, uint32_t second, uint32_t key);

    Connection& connection_;
    InputFocus& focus_;
    OwnClient own_;
    bool hasXTest_;
};

} // namespace ravelo::x11
