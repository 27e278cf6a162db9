#include "platform/freedesktop/ShortcutsPortal.h"

#include "platform/freedesktop/BusCall.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>

#include <utility>

namespace ravelo {

/// An element of a(sa{sv}).
struct PortalShortcut {
    QString id;
    QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcut& shortcut) {
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcut& shortcut) {
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

} // namespace ravelo

Q_DECLARE_METATYPE(ravelo::PortalShortcut)

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.GlobalShortcuts"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;
const QString sessionInterface = u"org.freedesktop.portal.Session"_s;
const QString shortcutId = u"toggle"_s;
constexpr std::chrono::seconds timeout(5);

/// As in the XDG specification of shortcuts.
QString trigger(const KeyCombination& keys) {
    QStringList parts;
    const std::pair<Qt::KeyboardModifier, QString> names[] = {{Qt::ControlModifier, u"CTRL"_s},
                                                              {Qt::AltModifier, u"ALT"_s},
                                                              {Qt::ShiftModifier, u"SHIFT"_s},
                                                              {Qt::MetaModifier, u"LOGO"_s}};
    for (const auto& [flag, name] : names) {
        if (keys.modifiers & flag) {
            parts.append(name);
        }
    }
    parts.append(keys.keysymName());
    return parts.join(u'+');
}

} // namespace

ShortcutsPortal::ShortcutsPortal(QDBusConnection bus) : bus_(std::move(bus)) {
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    auto question = QDBusMessage::createMethodCall(service, path,
                                                   u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << interface << u"version"_s;
    asking_ = callBus(
        bus_, question, timeout,
        [this](const QDBusMessage& answer) {
            if (answer.type() != QDBusMessage::ReplyMessage) {
                return;
            }
            portal_ = answer.service();
            setState(State::none);
            if (keys_) {
                open();
            }
        },
        Activation::allowed);
}

ShortcutsPortal::~ShortcutsPortal() {
    close();
}

void ShortcutsPortal::set(const std::optional<KeyCombination>& keys) {
    keys_ = keys;
    if (portal_.isEmpty()) {
        return;
    }
    close();
    setState(State::none);
    if (keys_) {
        open();
    }
}

void ShortcutsPortal::setState(State state) {
    if (std::exchange(state_, state) != state) {
        changes_.notify();
    }
}

void ShortcutsPortal::open() {
    // From any sender, because matching one blocks.
    bus_.connect({}, path, interface, u"Activated"_s, this, SLOT(activated(QDBusMessage)));
    request(u"CreateSession"_s, {},
            {{u"session_handle_token"_s, u"ravelo"_s + QString::number(requests_)}});
    setState(State::asked);
}

void ShortcutsPortal::bind() {
    const QList<PortalShortcut> shortcuts{{shortcutId,
                                           {{u"description"_s, tr("Open or close Ravelo")},
                                            {u"preferred_trigger"_s, trigger(*keys_)}}}};
    request(
        u"BindShortcuts"_s,
        {QVariant::fromValue(QDBusObjectPath(session_)), QVariant::fromValue(shortcuts), QString()},
        {});
}

void ShortcutsPortal::close() {
    call_.reset();
    request_.clear();
    if (const QString session = std::exchange(session_, {}); !session.isEmpty()) {
        const Handle nobodyWaits = callBus(
            bus_, QDBusMessage::createMethodCall(service, session, sessionInterface, u"Close"_s),
            timeout, [](const QDBusMessage&) {});
    }
}

/// The answer comes as a signal of an object whose path is known before.
void ShortcutsPortal::request(const QString& method, const QVariantList& before,
                              QVariantMap options) {
    const QString token = u"ravelo"_s + QString::number(++requests_);
    const QString sender = bus_.baseService().mid(1).replace(u'.', u'_');
    request_ = u"%1/request/%2/%3"_s.arg(path, sender, token);
    bus_.connect({}, request_, requestInterface, u"Response"_s, this,
                 SLOT(responded(QDBusMessage)));
    options.insert(u"handle_token"_s, token);
    auto call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(before + QVariantList{options});
    call_ = callBus(bus_, call, timeout, [this](const QDBusMessage& answer) {
        if (answer.type() == QDBusMessage::ErrorMessage) {
            setState(State::refused);
        }
    });
}

void ShortcutsPortal::responded(const QDBusMessage& response) {
    if (!isFromPortal(response) || response.path() != request_) {
        return;
    }
    bus_.disconnect({}, request_, requestInterface, u"Response"_s, this,
                    SLOT(responded(QDBusMessage)));
    request_.clear();
    const QVariantList arguments = response.arguments();
    const auto results = qdbus_cast<QVariantMap>(arguments.value(1));
    if (arguments.value(0).toUInt() != 0) {
        setState(State::refused);
    } else if (session_.isEmpty()) {
        session_ = results.value(u"session_handle"_s).toString();
        bind();
    } else {
        const auto bound = qdbus_cast<QList<PortalShortcut>>(results.value(u"shortcuts"_s));
        setState(bound.isEmpty() ? State::refused : State::registered);
    }
}

void ShortcutsPortal::activated(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (isFromPortal(signal) && arguments.value(1).toString() == shortcutId &&
        arguments.value(0).value<QDBusObjectPath>().path() == session_) {
        const auto options = qdbus_cast<QVariantMap>(arguments.value(3));
        presses_.notify(options.value(u"activation_token"_s).toString().toUtf8());
    }
}

bool ShortcutsPortal::isFromPortal(const QDBusMessage& message) const {
    return message.service() == portal_;
}

} // namespace ravelo
