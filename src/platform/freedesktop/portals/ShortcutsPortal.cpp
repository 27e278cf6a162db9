#include "platform/freedesktop/portals/ShortcutsPortal.h"

#include "platform/freedesktop/BusCall.h"
#include "platform/freedesktop/portals/PortalBus.h"

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
constexpr std::chrono::seconds timeout(5);

/// In the XDG format for shortcuts.
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

/// Portals keep the keys of an ID that they know, whatever we prefer: other keys need another.
QString shortcutId(const KeyCombination& keys) {
    return u"toggle-"_s + trigger(keys);
}

} // namespace

ShortcutsPortal::ShortcutsPortal(QDBusConnection bus) : bus_(std::move(bus)) {
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    watcher_.setConnection(bus_);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { follow(owner); });
}

ShortcutsPortal::~ShortcutsPortal() {
    close();
}

void ShortcutsPortal::ask() {
    if (watcher_.watchedServices().isEmpty()) {
        watcher_.addWatchedService(service);
        askForVersion();
    }
}

/// Sessions end with the portal; a new one knows nothing of our keys.
void ShortcutsPortal::follow(const QString& owner) {
    if (owner == portal_) {
        return; // Our question has started it.
    }
    forget();
    portal_.clear();
    abandoned_.clear();
    setState(State::impossible);
    if (!owner.isEmpty()) {
        introduceToPortals(bus_);
        askForVersion();
    }
}

void ShortcutsPortal::askForVersion() {
    auto question = QDBusMessage::createMethodCall(service, path,
                                                   u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << interface << u"version"_s;
    asking_ = callBus(
        bus_, question, timeout,
        [this](const QDBusMessage& answer) {
            if (answer.type() == QDBusMessage::ReplyMessage) {
                asking_ = findOwner(bus_, service, timeout,
                                    [this](const QString& owner) { meet(owner); });
            }
        },
        Activation::allowed);
}

/// It has answered. If it has gone since, the watcher reports the next one.
void ShortcutsPortal::meet(const QString& owner) {
    if (owner.isEmpty()) {
        return;
    }
    portal_ = owner;
    setState(State::none);
    if (keys_) {
        open();
    }
}

void ShortcutsPortal::set(const std::optional<KeyCombination>& keys) {
    keys_ = keys;
    if (portal_.isEmpty()) {
        if (keys_) {
            ask();
        }
        return;
    }
    close();
    setState(State::none);
    if (keys_) {
        open();
    }
}

void ShortcutsPortal::setState(State state, const QString& description) {
    const bool isNew = std::exchange(state_, state) != state;
    if (std::exchange(description_, description) != description || isNew) {
        changes_.notify();
    }
}

void ShortcutsPortal::open() {
    // From any sender, because matching one blocks.
    bus_.connect({}, path, interface, u"Activated"_s, this, SLOT(activated(QDBusMessage)));
    bus_.connect({}, path, interface, u"ShortcutsChanged"_s, this, SLOT(changed(QDBusMessage)));
    // KDE stores the keys by it for programs without a desktop file.
    const QString token = abandoned_.isEmpty() ? u"ravelo"_s : u"ravelo%1"_s.arg(requests_);
    request(u"CreateSession"_s, {}, {{u"session_handle_token"_s, token}});
    setState(State::asked);
}

/// To bind keys again that it knows could show its settings again, as on KDE.
void ShortcutsPortal::list() {
    isListing_ = true;
    request(u"ListShortcuts"_s, {QVariant::fromValue(QDBusObjectPath(session_))}, {});
}

void ShortcutsPortal::bind() {
    const QList<PortalShortcut> shortcuts{{shortcutId(*keys_),
                                           {{u"description"_s, tr("Open or close Ravelo")},
                                            {u"preferred_trigger"_s, trigger(*keys_)}}}};
    request(
        u"BindShortcuts"_s,
        {QVariant::fromValue(QDBusObjectPath(session_)), QVariant::fromValue(shortcuts), QString()},
        {});
}

void ShortcutsPortal::close() {
    if (!request_.isEmpty() && session_.isEmpty()) {
        abandoned_.append(std::exchange(request_, {})); // Its session is still to come.
    }
    const QString session = session_;
    forget();
    if (!session.isEmpty()) {
        closeSession(session);
    }
}

void ShortcutsPortal::forget() {
    call_.reset();
    isListing_ = false;
    if (!request_.isEmpty()) {
        listenTo(std::exchange(request_, {}), Listening::off);
    }
    if (!session_.isEmpty()) {
        bus_.disconnect({}, std::exchange(session_, {}), sessionInterface, u"Closed"_s, this,
                        SLOT(closed(QDBusMessage)));
    }
}

void ShortcutsPortal::closeSession(const QString& session) {
    const Handle nobodyWaits = callBus(
        bus_, QDBusMessage::createMethodCall(service, session, sessionInterface, u"Close"_s),
        timeout, [](const QDBusMessage&) {});
}

void ShortcutsPortal::listenTo(const QString& request, Listening listening) {
    if (listening == Listening::on) {
        bus_.connect({}, request, requestInterface, u"Response"_s, this,
                     SLOT(responded(QDBusMessage)));
    } else {
        bus_.disconnect({}, request, requestInterface, u"Response"_s, this,
                        SLOT(responded(QDBusMessage)));
    }
}

/// The answer comes as a signal of an object whose path is known before.
void ShortcutsPortal::request(const QString& method, const QVariantList& before,
                              QVariantMap options) {
    const QString token = u"ravelo"_s + QString::number(++requests_);
    const QString sender = bus_.baseService().mid(1).replace(u'.', u'_');
    request_ = u"%1/request/%2/%3"_s.arg(path, sender, token);
    listenTo(request_, Listening::on);
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
    const bool isAbandoned = abandoned_.contains(response.path());
    if (!isFromPortal(response) || (response.path() != request_ && !isAbandoned)) {
        return;
    }
    listenTo(response.path(), Listening::off);
    const QVariantList arguments = response.arguments();
    const auto results = qdbus_cast<QVariantMap>(arguments.value(1));
    const QString session = results.value(u"session_handle"_s).toString();
    if (isAbandoned) {
        abandoned_.removeOne(response.path());
        if (!session.isEmpty()) {
            closeSession(session);
        }
        return;
    }
    request_.clear();
    const bool isGranted = arguments.value(0).toUInt() == 0;
    if (session_.isEmpty() && isGranted) {
        session_ = session;
        bus_.connect({}, session_, sessionInterface, u"Closed"_s, this, SLOT(closed(QDBusMessage)));
        list();
    } else if (isGranted && accept(results.value(u"shortcuts"_s))) {
        isListing_ = false;
    } else if (std::exchange(isListing_, false)) {
        bind();
    } else {
        setState(State::refused);
    }
}

/// False if they do not include ours. Those without a description have keys, as far as known.
bool ShortcutsPortal::accept(const QVariant& shortcuts) {
    for (const PortalShortcut& one : qdbus_cast<QList<PortalShortcut>>(shortcuts)) {
        if (one.id == shortcutId(*keys_)) {
            const QVariant description = one.properties.value(u"trigger_description"_s);
            const bool hasNone = description.isValid() && description.toString().isEmpty();
            setState(hasNone ? State::unassigned : State::registered, description.toString());
            return true;
        }
    }
    return false;
}

/// In the desktop's settings.
void ShortcutsPortal::changed(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (isFromPortal(signal) && keys_ &&
        arguments.value(0).value<QDBusObjectPath>().path() == session_) {
        (void)accept(arguments.value(1));
    }
}

void ShortcutsPortal::closed(const QDBusMessage& signal) {
    if (isFromPortal(signal) && signal.path() == session_) {
        forget();
        setState(State::refused);
    }
}

void ShortcutsPortal::activated(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (isFromPortal(signal) && keys_ && arguments.value(1).toString() == shortcutId(*keys_) &&
        arguments.value(0).value<QDBusObjectPath>().path() == session_) {
        const auto options = qdbus_cast<QVariantMap>(arguments.value(3));
        presses_.notify(options.value(u"activation_token"_s).toString().toUtf8());
    }
}

bool ShortcutsPortal::isFromPortal(const QDBusMessage& message) const {
    return message.service() == portal_;
}

} // namespace ravelo
