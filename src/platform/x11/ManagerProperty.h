#pragma once

#include "platform/x11/ManagerSelection.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace ravelo::x11 {

/// What a manager of our screen shares with all programs in a property of its window. Follows one
/// that comes, goes or starts anew. Main thread.
class ManagerProperty {
public:
    /// Both must outlive it. `manager` as ManagerSelection has it.
    ManagerProperty(Connection& connection, Events& events, QByteArrayView manager,
                    QByteArrayView property);

    [[nodiscard]] bool isOwned() const { return manager_.isOwned(); }

    // Each a round trip; empty while there is no manager or it shares nothing of this form.
    [[nodiscard]] QByteArray bytes();
    [[nodiscard]] std::vector<uint32_t> cardinals();

    /// Called after the manager or what it shares changed.
    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return listeners_.add(std::move(callback));
    }

private:
    void handle(const xcb_generic_event_t& event);
    void follow();

    Connection& connection_;
    const xcb_atom_t property_;
    ManagerSelection manager_;
    Listeners<> listeners_;
    Handle ownerChange_;
    Handle subscription_;
};

} // namespace ravelo::x11
