#include "platform/gnome/ShellExtension.h"

#include "platform/gnome/Protocol.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QTimer>

#include <utility>

namespace ravelo::gnome {

using namespace Qt::StringLiterals;

namespace {

using State = DesktopExtension::State;

constexpr int startTimeout = 10000; ///< Milliseconds: at login the shell is busy.
constexpr int timeout = 5000;

/// Milliseconds between the shell's promise to run an extension and its doing so.
constexpr int patience = 2000;

// Of the shell's ExtensionState.
constexpr int enabledState = 1;
constexpr int errorState = 3;
constexpr int outOfDateState = 4;

const QString shellInterface = u"org.gnome.Shell.Extensions"_s;
const QString settingsSchema = u"org.gnome.shell"_s;
const QString settingsKey = u"enabled-extensions"_s;

QDBusMessage shellCall(const QString& method) {
    auto call = QDBusMessage::createMethodCall(u"org.gnome.Shell"_s, u"/org/gnome/Shell"_s,
                                               shellInterface, method);
    call.setAutoStartService(false);
    call << QString(extensionId);
    return call;
}

QVariantMap infoIn(const QDBusMessage& answer) {
    return qdbus_cast<QVariantMap>(answer.arguments().value(0));
}

bool isInstalled() {
    return !QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                   u"gnome-shell/extensions/%1/metadata.json"_s.arg(extensionId))
                .isEmpty();
}

/// Runs gsettings, which ends at once, and passes on what it printed; empty if it failed.
void runSettings(QObject& owner, const QStringList& arguments,
                 const std::function<void(const QString&)>& done) {
    auto* const process = new QProcess(&owner);
    QObject::connect(process, &QProcess::finished, &owner,
                     [process, done](int code, QProcess::ExitStatus status) {
                         const bool worked = status == QProcess::NormalExit && code == 0;
                         done(worked ? QString::fromUtf8(process->readAllStandardOutput().trimmed())
                                     : QString());
                         process->deleteLater();
                     });
    QObject::connect(process, &QProcess::errorOccurred, &owner,
                     [process, done](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart) {
                             done({});
                             process->deleteLater();
                         }
                     });
    process->start(u"gsettings"_s, arguments, QProcess::ReadOnly);
}

} // namespace

bool isGnomeOnWayland() {
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    return desktops.contains(u"GNOME"_s) && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           !qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR");
}

bool isExtensionRunning() {
    if (!isGnomeOnWayland()) {
        return false;
    }
    const QString name = u"ravelo-start"_s;
    QVariantMap info;
    {
        auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        info = infoIn(bus.call(shellCall(u"GetExtensionInfo"_s), QDBus::Block, startTimeout));
    }
    QDBusConnection::disconnectFromBus(name);
    return stateOf(info) == State::on;
}

DesktopExtension::State stateOf(const QVariantMap& info) {
    if (info.isEmpty()) {
        return State::missing;
    }
    const int state = info.value(u"state"_s).toInt();
    if (state != enabledState) {
        return state == errorState || state == outOfDateState ? State::failed : State::off;
    }
    const int version = info.value(u"ravelo-protocol"_s).toInt();
    if (version == protocolVersion) {
        return State::on;
    }
    return version < protocolVersion ? State::older : State::newer;
}

QString withName(const QString& list, QLatin1StringView name) {
    const qsizetype begin = list.indexOf(u'[');
    if (begin < 0 || !list.endsWith(u']') || (begin > 0 && !list.startsWith(u"@as "))) {
        return {};
    }
    const QString quoted = u'\'' + name + u'\'';
    const QString inside = list.sliced(begin + 1).chopped(1).trimmed();
    if (inside.isEmpty()) {
        return u'[' + quoted + u']';
    }
    return u'[' + inside + (inside.contains(quoted) ? u"]"_s : u", "_s + quoted + u']');
}

ShellExtension::ShellExtension(QDBusConnection bus, Used used) : bus_(std::move(bus)), used_(used) {
    if (isGnomeOnWayland()) {
        // From any sender, because matching one blocks.
        bus_.connect({}, {}, shellInterface, u"ExtensionStateChanged"_s, this, SLOT(refresh()));
        refresh();
    }
}

void ShellExtension::turnOn() {
    if (state_ != State::off) {
        return;
    }
    call(u"EnableExtension"_s, [this](const QDBusMessage& answer) {
        if (answer.type() == QDBusMessage::ReplyMessage && answer.arguments().value(0).toBool()) {
            refresh();
            // It also promises that if the user has turned off all extensions, and runs none.
            QTimer::singleShot(patience, this, [this] { refreshOr(State::failed); });
        } else {
            addToSettings();
        }
    });
}

void ShellExtension::call(const QString& method, std::function<void(const QDBusMessage&)> done) {
    auto* const watcher =
        new QDBusPendingCallWatcher(bus_.asyncCall(shellCall(method), timeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, done = std::move(done)] {
        done(watcher->reply());
        watcher->deleteLater();
    });
}

void ShellExtension::refresh() {
    refreshOr(State::off);
}

void ShellExtension::refreshOr(State off) {
    call(u"GetExtensionInfo"_s, [this, off](const QDBusMessage& answer) {
        const State state = stateOf(infoIn(answer));
        if (answer.type() != QDBusMessage::ReplyMessage) {
            set(State::notNeeded); // No shell that we know.
        } else if (state == State::missing && isInstalled()) {
            refreshBySettings(off);
        } else {
            set(state == State::on && used_ == Used::no ? State::waitsForStart
                : state == State::off                   ? off
                                                        : state);
        }
    });
}

void ShellExtension::refreshBySettings(State otherwise) {
    runSettings(*this, {u"get"_s, settingsSchema, settingsKey},
                [this, otherwise](const QString& list) {
                    set(list.contains(extensionId) ? State::waitsForLogin : otherwise);
                });
}

void ShellExtension::addToSettings() {
    runSettings(*this, {u"get"_s, settingsSchema, settingsKey}, [this](const QString& list) {
        const QString longer = withName(list, extensionId);
        if (longer.isEmpty()) {
            set(State::failed);
            return;
        }
        runSettings(*this, {u"set"_s, settingsSchema, settingsKey, longer},
                    [this](const QString& /*nothing*/) { refreshBySettings(State::failed); });
    });
}

void ShellExtension::set(State state) {
    if (std::exchange(state_, state) != state) {
        changes_.notify();
    }
}

} // namespace ravelo::gnome
