#pragma once

#include "platform/freedesktop/SingleInstance.h"

#include <QLocalServer>
#include <QLockFile>

namespace ravelo {

/// The one that holds the lock file of this user and display, and listens on the socket beside it.
class SocketInstance final : public SingleInstance {
public:
    [[nodiscard]] static std::unique_ptr<SingleInstance> claim();
    [[nodiscard]] static bool send(const QString& action);

private:
    SocketInstance();
    void accept();

    QLockFile lock_;
    QLocalServer server_;
};

} // namespace ravelo
