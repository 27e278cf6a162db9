#include "platform/x11/selection/SelectionWatch.h"

#include <xcb/xfixes.h>

namespace ravelo::x11 {

SelectionWatch::SelectionWatch(Connection& connection, const QByteArray& selection,
                               Callback changed, Listens listens)
    : connection_(connection),
      noticeType_(connection.xfixesFirstEvent() + XCB_XFIXES_SELECTION_NOTIFY),
      selection_(connection.atom(selection)),
      changed_(std::move(changed)),
      reader_(connection, selection_) {
    listen(listens);
}

void SelectionWatch::listen(Listens listens) {
    constexpr uint32_t all = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                             XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                             XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
    xcb_xfixes_select_selection_input(connection_.get(), connection_.root(), selection_,
                                      listens == Listens::now ? all : 0);
    xcb_flush(connection_.get());
}

void SelectionWatch::handle(const xcb_generic_event_t& event) {
    if (event.response_type == noticeType_) {
        const auto& notice = reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event);
        if (notice.selection == selection_) {
            reader_.ownerChanged(notice.selection_timestamp);
            const auto cause = notice.subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER
                                   ? OwnerChange::Cause::request
                                   : OwnerChange::Cause::death;
            changed_({cause, notice.owner, event.full_sequence, notice.selection_timestamp});
        }
        return;
    }
    reader_.handle(event);
}

} // namespace ravelo::x11
