#include "platform/x11/settings/ManagerSelection.h"

#include "platform/x11/connection/Properties.h"

#include <xcb/xfixes.h>

#include <utility>

namespace ravelo::x11 {

namespace {

int screenNumber(const Connection& connection) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    int number = 0;
    while (screens.rem > 1 && screens.data->root != connection.root()) {
        xcb_screen_next(&screens);
        ++number;
    }
    return number;
}

} // namespace

ManagerSelection::ManagerSelection(Connection& connection, Events& events, QByteArrayView name)
    : selection_(connection.atom(name.toByteArray() + "_S" +
                                 QByteArray::number(screenNumber(connection)))),
      noticeType_(
          static_cast<uint8_t>(connection.xfixesFirstEvent() + XCB_XFIXES_SELECTION_NOTIFY)),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {
    constexpr uint32_t mask = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
    // First select events, then ask, so that no change is missed.
    xcb_xfixes_select_selection_input(connection.get(), connection.root(), selection_, mask);
    const auto cookie = xcb_get_selection_owner(connection.get(), selection_);
    const Owned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection.get(), cookie, nullptr));
    if (reply) {
        owner_ = reply->owner;
    }
}

Handle ManagerSelection::onChange(std::function<void()> callback) {
    return listeners_.add(std::move(callback));
}

void ManagerSelection::handle(const xcb_generic_event_t& event) {
    const auto* notice = eventAs<xcb_xfixes_selection_notify_event_t>(event, noticeType_);
    if (notice == nullptr || notice->selection != selection_) {
        return;
    }
    if (std::exchange(owner_, notice->owner) != notice->owner) {
        listeners_.notify();
    }
}

ManagerProperty::ManagerProperty(Connection& connection, Events& events, QByteArrayView manager,
                                 QByteArrayView property)
    : connection_(connection),
      property_(connection.atom(property.toByteArray())),
      manager_(connection, events, manager),
      ownerChange_(manager_.onChange([this] {
          follow();
          listeners_.notify();
      })),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {
    follow();
}

QByteArray ManagerProperty::bytes() {
    return isOwned() ? PropertyRequest(connection_, manager_.owner(), property_).bytes()
                     : QByteArray();
}

std::vector<uint32_t> ManagerProperty::cardinals() {
    return isOwned() ? PropertyRequest(connection_, manager_.owner(), property_).cardinals()
                     : std::vector<uint32_t>();
}

void ManagerProperty::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    if (change != nullptr && change->window == manager_.owner() && change->atom == property_) {
        listeners_.notify();
    }
}

/// Selects this manager's property events.
void ManagerProperty::follow() {
    if (isOwned()) {
        const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_.get(), manager_.owner(), XCB_CW_EVENT_MASK, &mask);
    }
}

} // namespace ravelo::x11
