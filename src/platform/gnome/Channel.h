#pragma once

#include "base/Listeners.h"
#include "base/Result.h"
#include "platform/gnome/Inbox.h"

#include <QDBusConnection>
#include <QObject>
#include <QSize>
#include <QSocketNotifier>

#include <functional>
#include <list>
#include <memory>

class QDBusMessage;

namespace ravelo::gnome {

/// The socket on which Ravelo listens, and the connection of the extension to it. A peer is
/// believed only if it is the process that owns org.gnome.Shell on the session bus, and this
/// user's. Never blocks; if the shell does not read for long, it is disconnected. Main thread.
class Channel final : public QObject {
public:
    /// `hello` is sent first.
    [[nodiscard]] static Result<std::unique_ptr<Channel>>
    listen(const QString& path, QDBusConnection bus, QByteArray hello);
    ~Channel() override;

    /// Whether the extension is connected.
    [[nodiscard]] bool isUp() const { return up_; }

    [[nodiscard]] Handle onUpChange(std::function<void()> callback) {
        return upChanges_.add(std::move(callback));
    }

    /// Called for each report except the greeting. The descriptor is for one listener to move away.
    [[nodiscard]] Handle onDelivery(std::function<void(Delivery&)> callback) {
        return deliveries_.add(
            [callback = std::move(callback)](Delivery* delivery) { callback(*delivery); });
    }

    /// Delivers what has arrived, before the event loop does.
    void receive();

    /// Does nothing while the extension is not connected.
    void send(const QByteArray& line);

private:
    /// A connection that was accepted and not believed yet, or is about to say what it is for.
    struct Guest {
        Descriptor socket;
        qint64 pid = 0;
        bool trusted = false;
        std::unique_ptr<QSocketNotifier> readable = {};
    };

    Channel(Descriptor socket, QString path, QDBusConnection bus, QByteArray hello);

    void accept();
    void verified(qint64 pid, const QDBusMessage& answer);
    void hearGuest(std::list<Guest>::iterator guest);
    void adopt(Descriptor socket);
    void flush();
    void close();

    Descriptor listening_;
    QString path_;
    QDBusConnection bus_;
    QByteArray hello_;
    std::unique_ptr<QSocketNotifier> incoming_;
    std::list<Guest> guests_;
    Descriptor socket_;
    std::unique_ptr<QSocketNotifier> readable_;
    std::unique_ptr<QSocketNotifier> writable_;
    Inbox inbox_;
    QByteArray outgoing_;
    bool up_ = false;
    Listeners<> upChanges_;
    Listeners<Delivery*> deliveries_;
};

} // namespace ravelo::gnome
