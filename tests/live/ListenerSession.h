#pragma once

#include "live/support/Clients.h"
#include "platform/x11/pointer/X11Pointer.h"
#include "platform/x11/selection/X11DragMonitor.h"
#include "platform/x11/selection/X11Pasteboard.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>

#include <gtest/gtest.h>
#include <xcb/xfixes.h>

#include <memory>

namespace ravelo::live {

/// Everything that listens, on the display of this test program.
struct ListenerSession {
    std::unique_ptr<x11::Connection> connection = std::move(x11::Connection::create().value());
    std::unique_ptr<x11::Listener> listener = std::move(x11::Listener::create().value());
    x11::X11Pasteboard pasteboard{*listener};
    x11::X11DragMonitor drags{*listener};
    x11::X11Pointer pointer{*connection, *listener, x11::X11Pointer::Known::everywhere,
                            [](QPoint native) {
                                return QPointF(native);
                            }};

    ListenerSession() { listener->start(); }

    /// The window that owns the clipboard.
    [[nodiscard]] xcb_window_t clipboardOwner() const {
        const auto question = xcb_get_selection_owner(
            connection->get(), connection->atom(QByteArrayLiteral("CLIPBOARD")));
        const x11::Owned<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(connection->get(), question, nullptr));
        return reply ? reply->owner : XCB_NONE;
    }
};

/// Qt's notifications of new owners of selections. The server refuses our copy if the newest time
/// known to Qt is older than another program's copy, so a test that copies without a press must
/// wait until Qt has been notified of that.
class NoticesOfQt : public QAbstractNativeEventFilter {
public:
    explicit NoticesOfQt(const x11::Connection& connection)
        : noticeType_(connection.xfixesFirstEvent()) {
        qGuiApp->installNativeEventFilter(this);
    }

    [[nodiscard]] int count() const { return count_; }

    /// Of the newest: the new owner, and the server's time.
    [[nodiscard]] xcb_window_t owner() const { return owner_; }

    [[nodiscard]] xcb_timestamp_t time() const { return time_; }

    bool nativeEventFilter(const QByteArray& /*kind*/, void* message,
                           qintptr* /*result*/) override {
        const auto& notice = *static_cast<const xcb_xfixes_selection_notify_event_t*>(message);
        if (notice.response_type == noticeType_) {
            ++count_;
            owner_ = notice.owner;
            time_ = notice.timestamp;
        }
        return false;
    }

private:
    uint8_t noticeType_;
    int count_ = 0;
    xcb_window_t owner_ = XCB_NONE;
    xcb_timestamp_t time_ = 0;
};

inline QString selectionOwner() {
    return QStringLiteral(SELECTION_OWNER);
}

/// An argument for SelectionOwner: `target` with these bytes.
inline QString offering(const QString& target, const QByteArray& bytes) {
    return target + QStringLiteral("=hex:") + QString::fromLatin1(bytes.toHex());
}

/// The contents that SelectionOwner offers for TARGET=fill:`size`.
inline QByteArray filling(qsizetype size) {
    QByteArray bytes(size, '\0');
    for (qsizetype at = 0; at < size; ++at) {
        bytes[at] = static_cast<char>(at % 251);
    }
    return bytes;
}

} // namespace ravelo::live
