#include "Keyboard.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>
#include <array>
#include <cstdio>
#include <span>
#include <utility>
#include <vector>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.RemoteDesktop"_s;
const QString sessionInterface = u"org.freedesktop.portal.Session"_s;
constexpr int timeout = 5000; ///< In ms; of calls, not of the user.
constexpr qsizetype maxLine = 1024;

constexpr uint keyboardDevice = 1;
constexpr uint untilRevoked = 2;    ///< A persist mode.
constexpr uint firstWithTokens = 2; ///< Version of the interface.
constexpr uint cancelled = 1;       ///< A response.

constexpr uint pressed = 1;
constexpr uint released = 0;

void say(const QByteArray& line) {
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void end(const QByteArray& line) {
    say(line);
    QCoreApplication::quit();
}

} // namespace

Keyboard::Keyboard()
    : bus_(QDBusConnection::sessionBus()), input_(STDIN_FILENO, QSocketNotifier::Read) {
    connect(&input_, &QSocketNotifier::activated, this, &Keyboard::read);
}

void Keyboard::read() {
    std::array<char, 256> buffer = {};
    const ssize_t size = ::read(STDIN_FILENO, buffer.data(), buffer.size());
    if (size <= 0 || line_.size() > maxLine) {
        input_.setEnabled(false);
        QCoreApplication::quit();
        return;
    }
    for (const char one : std::span(buffer).first(static_cast<size_t>(size))) {
        if (one != '\n') {
            line_ += one;
            continue;
        }
        const QByteArray line = std::exchange(line_, {});
        if (portal_.isEmpty()) {
            token_ = QString::fromUtf8(line);
            meetPortal();
        } else if (step_ == Step::open) {
            type(line);
        }
    }
}

QDBusMessage Keyboard::call(const QString& object, const QString& of, const QString& method,
                            const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(service, object, of, method);
    message.setArguments(arguments);
    return bus_.call(message, QDBus::Block, timeout);
}

void Keyboard::meetPortal() {
    // Newer portals keep the answer for this program then, however it was started.
    call(path, u"org.freedesktop.host.portal.Registry"_s, u"Register"_s,
         {u"org.ravelo.Ravelo"_s, QVariantMap()});
    const QDBusMessage version =
        call(path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {interface, u"version"_s});
    const auto value = version.arguments().value(0).value<QDBusVariant>();
    version_ = value.variant().toUInt();
    portal_ =
        bus_.interface() != nullptr ? bus_.interface()->serviceOwner(service).value() : QString();
    if (version_ == 0 || portal_.isEmpty()) {
        end("unavailable");
        return;
    }
    bus_.connect(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s,
                 u"NameOwnerChanged"_s, {service}, {}, this,
                 SLOT(ownerChanged(QString, QString, QString)));
    createSession();
}

/// The answer comes as a signal of an object whose path is known before.
void Keyboard::request(const QString& method, QVariantList arguments, QVariantMap options) {
    const QString token = u"ravelo%1"_s.arg(int(step_));
    const QString sender = bus_.baseService().mid(1).replace(u'.', u'_');
    request_ = u"%1/request/%2/%3"_s.arg(path, sender, token);
    bus_.connect(portal_, request_, u"org.freedesktop.portal.Request"_s, u"Response"_s, this,
                 SLOT(responded(QDBusMessage)));
    options.insert(u"handle_token"_s, token);
    arguments.append(options);
    if (call(path, interface, method, arguments).type() != QDBusMessage::ReplyMessage) {
        end("unavailable");
    }
}

void Keyboard::createSession() {
    step_ = Step::create;
    request(u"CreateSession"_s, {}, {{u"session_handle_token"_s, u"ravelo"_s}});
}

void Keyboard::selectDevices() {
    step_ = Step::selectDevices;
    QVariantMap options{{u"types"_s, keyboardDevice}};
    if (version_ >= firstWithTokens) {
        options.insert(u"persist_mode"_s, untilRevoked);
        if (!token_.isEmpty()) {
            options.insert(u"restore_token"_s, token_);
        }
    }
    request(u"SelectDevices"_s, {QVariant::fromValue(QDBusObjectPath(session_))}, options);
}

void Keyboard::start() {
    step_ = Step::start;
    request(u"Start"_s, {QVariant::fromValue(QDBusObjectPath(session_)), QString()}, {});
}

void Keyboard::responded(const QDBusMessage& response) {
    if (response.path() != request_) {
        return;
    }
    request_.clear();
    const QVariantList arguments = response.arguments();
    const auto results = qdbus_cast<QVariantMap>(arguments.value(1));
    if (const uint code = arguments.value(0).toUInt(); code != 0) {
        end(step_ == Step::start && code == cancelled ? "refused" : "unavailable");
        return;
    }
    switch (step_) {
    case Step::create:
        session_ = results.value(u"session_handle"_s).toString();
        bus_.connect(portal_, session_, sessionInterface, u"Closed"_s, this,
                     SLOT(closed(QDBusMessage)));
        selectDevices();
        break;
    case Step::selectDevices:
        start();
        break;
    case Step::start:
        opened(results);
        break;
    case Step::open:
        break;
    }
}

void Keyboard::opened(const QVariantMap& results) {
    if ((results.value(u"devices"_s).toUInt() & keyboardDevice) == 0) {
        end("refused");
        return;
    }
    step_ = Step::open;
    const QByteArray token = results.value(u"restore_token"_s).toString().toUtf8();
    say(token.isEmpty() || token.contains('\n') ? "open" : "open " + token);
}

struct Keyboard::Key {
    const char* word; ///< In a line of the input.
    const char* method;
    int code; ///< A keysym of X11, which the desktop looks up in the user's layout, or a code of
              ///< evdev.
};

void Keyboard::type(const QByteArray& chord) {
    static constexpr std::array known{Key{"control", "NotifyKeyboardKeysym", 0xffe3},
                                      Key{"shift", "NotifyKeyboardKeysym", 0xffe1},
                                      Key{"v", "NotifyKeyboardKeysym", 0x76},
                                      Key{"place", "NotifyKeyboardKeycode", 47}};
    std::vector<Key> keys;
    for (const QByteArray& word : chord.split(' ')) {
        const auto* const key =
            std::ranges::find_if(known, [&](const Key& one) { return word == one.word; });
        if (key == known.end()) {
            return;
        }
        keys.push_back(*key);
    }
    bool worked = true;
    for (const Key& key : keys) {
        worked = worked && notify(key, pressed);
    }
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) {
        notify(*key, released);
    }
    if (!worked) {
        end("closed");
    }
}

/// Waits for the answer: the portal handles calls in threads, in whatever order.
bool Keyboard::notify(const Key& key, uint state) {
    return call(path, interface, QString::fromLatin1(key.method),
                {QVariant::fromValue(QDBusObjectPath(session_)), QVariantMap(), key.code, state})
               .type() == QDBusMessage::ReplyMessage;
}

void Keyboard::closed(const QDBusMessage& signal) {
    if (signal.path() == session_) {
        end("closed");
    }
}

void Keyboard::ownerChanged(const QString& /*name*/, const QString& before,
                            const QString& /*now*/) {
    if (before == portal_) {
        end("closed");
    }
}
