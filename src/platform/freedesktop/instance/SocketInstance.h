#pragma once

#include "platform/freedesktop/instance/SingleInstance.h"

#include <QLocalServer>
#include <QLockFile>

class QLocalSocket;

namespace ravelo {

/// The instance that holds the lock file of this user and display and listens on the socket beside
/// it. Request and answer are one line of JSON each; the request is an array of words, or an object
/// with that array and an activation token.
class SocketInstance final : public SingleInstance {
public:
    [[nodiscard]] static std::unique_ptr<SocketInstance> claim();
    [[nodiscard]] static std::optional<Answer> ask(const QStringList& request,
                                                   const QByteArray& activationToken = {},
                                                   std::chrono::milliseconds timeout = answerTime);

private:
    SocketInstance();
    void accept();
    void serve(QLocalSocket& socket) const;

    QLockFile lock_;
    QLocalServer server_;
};

} // namespace ravelo
