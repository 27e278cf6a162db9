#include "platform/x11/connection/Events.h"
#include "platform/x11/connection/Properties.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>
#include <poll.h>

#include <utility>

namespace ravelo::x11 {
namespace {

TEST(Events, areDeliveredIfTheFlushBeforeSleepReadsThem) {
    const auto ours = std::move(Connection::create().value());
    const auto other = std::move(Connection::create().value());
    const xcb_window_t window = xcb_generate_id(ours->get());
    const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(ours->get(), 0, window, ours->root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &mask);
    EXPECT_FALSE(windowSize(*ours, window).isEmpty());

    const QObject context; // Connected before the events, and so called before them.
    bool changed = false;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &context, [&] {
                         if (std::exchange(changed, true)) {
                             return;
                         }
                         xcb_no_operation(ours->get());
                         setCardinals(other->get(), window, XCB_ATOM_WM_NAME, {1});
                         xcb_flush(other->get());
                         pollfd arrival{xcb_get_file_descriptor(ours->get()), POLLIN, 0};
                         EXPECT_EQ(::poll(&arrival, 1, 5000), 1) << "the server sends no event";
                     });
    Events events(*ours);
    QEventLoop loop;
    bool delivered = false;
    const Handle listening = events.onEvent([&](const auto&) {
        delivered = true;
        loop.quit();
    });
    QTimer::singleShot(2000, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_TRUE(delivered) << "it waits for the next event";
}

} // namespace
} // namespace ravelo::x11
