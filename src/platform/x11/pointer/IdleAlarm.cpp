#include "platform/x11/pointer/IdleAlarm.h"

#include <string_view>

namespace ravelo::x11 {

namespace {

/// The counter of the core pointer, which is device 2 on every server.
constexpr std::string_view counterName = "DEVICEIDLETIME 2";

/// Milliseconds of stillness after which a motion counts: less than the three ticks before a rest,
/// and long enough for a server that is kept waiting to see that its pointer moved.
constexpr uint32_t stillness = 45;

xcb_sync_counter_t findCounter(Connection& connection) {
    const auto cookie = xcb_sync_list_system_counters(connection.get());
    const Owned<xcb_sync_list_system_counters_reply_t> reply(
        xcb_sync_list_system_counters_reply(connection.get(), cookie, nullptr));
    if (!reply) {
        return XCB_NONE;
    }
    auto counters = xcb_sync_list_system_counters_counters_iterator(reply.get());
    for (; counters.rem > 0; xcb_sync_systemcounter_next(&counters)) {
        // The name follows its length at once; xcb's own accessor looks two bytes too far.
        const char* const name = reinterpret_cast<const char*>(&counters.data->name_len) +
                                 sizeof counters.data->name_len;
        if (std::string_view(name, counters.data->name_len) == counterName) {
            return counters.data->counter;
        }
    }
    return XCB_NONE;
}

bool hasExtension(Connection& connection) {
    const auto cookie = xcb_sync_initialize(connection.get(), 3, 1);
    const Owned<xcb_sync_initialize_reply_t> reply(
        xcb_sync_initialize_reply(connection.get(), cookie, nullptr));
    return reply != nullptr;
}

} // namespace

IdleAlarm::IdleAlarm(Connection& connection) : connection_(connection) {
    const auto* extension = xcb_get_extension_data(connection.get(), &xcb_sync_id);
    if (extension == nullptr || extension->present == 0 || !hasExtension(connection)) {
        return;
    }
    const xcb_sync_counter_t counter = findCounter(connection);
    if (counter == XCB_NONE) {
        return;
    }
    firstEvent_ = extension->first_event;
    alarm_ = xcb_generate_id(connection.get());
    xcb_sync_create_alarm_value_list_t values = {};
    values.counter = counter;
    values.valueType = XCB_SYNC_VALUETYPE_ABSOLUTE;
    values.value.lo = stillness;
    values.testType = XCB_SYNC_TESTTYPE_NEGATIVE_TRANSITION;
    values.events = 0;
    xcb_sync_create_alarm_aux(connection.get(), alarm_,
                              XCB_SYNC_CA_COUNTER | XCB_SYNC_CA_VALUE_TYPE | XCB_SYNC_CA_VALUE |
                                  XCB_SYNC_CA_TEST_TYPE | XCB_SYNC_CA_DELTA | XCB_SYNC_CA_EVENTS,
                              &values);
}

void IdleAlarm::set(Switch state) {
    if (alarm_ != XCB_NONE) {
        const uint32_t events = state == Switch::on ? 1 : 0;
        xcb_sync_change_alarm(connection_.get(), alarm_, XCB_SYNC_CA_EVENTS, &events);
    }
}

bool IdleAlarm::isNotice(const xcb_generic_event_t& event) const {
    return alarm_ != XCB_NONE && event.response_type == firstEvent_ + XCB_SYNC_ALARM_NOTIFY;
}

} // namespace ravelo::x11
