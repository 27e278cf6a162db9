#pragma once

#include "live/support/Clients.h"
#include "platform/x11/X11DragMonitor.h"
#include "platform/x11/X11Pasteboard.h"
#include "platform/x11/X11Pointer.h"

#include <gtest/gtest.h>

#include <memory>

namespace ravelo::live {

/// Everything that listens, on the display of this test program.
struct ListenerSession {
    std::unique_ptr<x11::Connection> connection = std::move(x11::Connection::create().value());
    std::unique_ptr<x11::Listener> listener = std::move(x11::Listener::create().value());
    x11::X11Pasteboard pasteboard{*listener};
    x11::X11DragMonitor drags{*listener};
    x11::X11Pointer pointer{*connection, *listener, [](QPoint native) {
                                return QPointF(native);
                            }};

    ListenerSession() { listener->start(); }
};

inline QString selectionOwner() {
    return QStringLiteral(SELECTION_OWNER);
}

/// An argument for SelectionOwner: `target` with these bytes.
inline QString offering(const QString& target, const QByteArray& bytes) {
    return target + QStringLiteral("=hex:") + QString::fromLatin1(bytes.toHex());
}

/// What SelectionOwner gives for TARGET=fill:`size`.
inline QByteArray filling(qsizetype size) {
    QByteArray bytes(size, '\0');
    for (qsizetype at = 0; at < size; ++at) {
        bytes[at] = static_cast<char>(at % 251);
    }
    return bytes;
}

} // namespace ravelo::live
