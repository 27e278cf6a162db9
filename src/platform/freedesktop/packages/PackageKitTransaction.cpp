#include "platform/freedesktop/packages/PackageKitTransaction.h"

#include "platform/freedesktop/BusCall.h"

#include <QDBusObjectPath>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const auto service = u"org.freedesktop.PackageKit"_s;
const auto transaction = u"org.freedesktop.PackageKit.Transaction"_s;

/// It may have to be started, and it checks the caller before it answers.
constexpr std::chrono::seconds timeOut{25};

// Numbers of the protocol (pk-enum.h).
constexpr uint exitSuccess = 1;
constexpr uint errorNotAuthorized = 48;
constexpr uint highestPercent = 100; ///< 101 means that it is not known.

UpdateProblem problemOf(const QDBusMessage& reply) {
    using Kind = UpdateProblem::Kind;
    const QString name = reply.errorName();
    const bool isNobody = name == "org.freedesktop.DBus.Error.ServiceUnknown"_L1 ||
                          name == "org.freedesktop.DBus.Error.NameHasNoOwner"_L1 ||
                          name == "org.freedesktop.DBus.Error.Disconnected"_L1 ||
                          name.startsWith("org.freedesktop.DBus.Error.Spawn"_L1);
    if (isNobody) {
        return {Kind::noService, {}};
    }
    const bool isRefused = name == "org.freedesktop.DBus.Error.AccessDenied"_L1 ||
                           name.startsWith("org.freedesktop.PackageKit.Transaction.Refused"_L1);
    return {isRefused ? Kind::notAllowed : Kind::failed, reply.errorMessage().simplified()};
}

} // namespace

PackageKitTransaction::PackageKitTransaction(QDBusConnection bus, QString method,
                                             QVariantList arguments, std::function<void(Done)> done,
                                             std::optional<std::chrono::milliseconds> timeout)
    : bus_(std::move(bus)),
      method_(std::move(method)),
      arguments_(std::move(arguments)),
      done_(std::move(done)),
      service_(service, bus_, QDBusServiceWatcher::WatchForUnregistration) {
    silence_.setSingleShot(true);
    silence_.callOnTimeout([this] {
        end(tl::unexpected(
            UpdateProblem{UpdateProblem::Kind::failed, u"PackageKit does not answer."_s}));
    });
    if (timeout) {
        silence_.setInterval(*timeout);
        silence_.start();
    }
    const auto create = QDBusMessage::createMethodCall(service, u"/org/freedesktop/PackageKit"_s,
                                                       service, u"CreateTransaction"_s);
    call_ = callBus(
        bus_, create, timeOut, [this](const QDBusMessage& created) { begin(created); },
        Activation::allowed);
}

void PackageKitTransaction::begin(const QDBusMessage& created) {
    if (created.type() != QDBusMessage::ReplyMessage || created.signature() != "o"_L1) {
        end(tl::unexpected(problemOf(created)));
        return;
    }
    heard();
    path_ = created.arguments().constFirst().value<QDBusObjectPath>().path();
    listen();
    const QStringList hints{u"interactive=true"_s, u"background=false"_s,
                            u"supports-plural-signals=false"_s};
    call(u"SetHints"_s, {hints}, [this](const QDBusMessage&) {
        call(method_, arguments_, [this](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ErrorMessage) {
                end(tl::unexpected(problemOf(reply)));
            }
        });
    });
}

void PackageKitTransaction::listen() {
    bus_.connect(service, path_, transaction, u"Package"_s, this,
                 SLOT(Package(uint, QString, QString)));
    bus_.connect(service, path_, transaction, u"ErrorCode"_s, this, SLOT(ErrorCode(uint, QString)));
    bus_.connect(service, path_, transaction, u"Finished"_s, this, SLOT(Finished(uint, uint)));
    bus_.connect(service, path_, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s, this,
                 SLOT(PropertiesChanged(QString, QVariantMap, QStringList)));
    connect(&service_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        end(tl::unexpected(UpdateProblem{UpdateProblem::Kind::failed, u"PackageKit has ended."_s}));
    });
}

void PackageKitTransaction::call(const QString& method, const QVariantList& arguments,
                                 std::function<void(const QDBusMessage&)> done) {
    auto message = QDBusMessage::createMethodCall(service, path_, transaction, method);
    message.setArguments(arguments);
    call_ = callBus(bus_, message, timeOut, std::move(done));
}

void PackageKitTransaction::Package(uint /*info*/, const QString& id, const QString& /*summary*/) {
    heard();
    packages_.append(id);
}

void PackageKitTransaction::ErrorCode(uint code, const QString& details) {
    const auto kind =
        code == errorNotAuthorized ? UpdateProblem::Kind::notAllowed : UpdateProblem::Kind::failed;
    problem_ = UpdateProblem{kind, details.simplified()};
}

void PackageKitTransaction::Finished(uint exit, uint /*runtime*/) {
    if (exit == exitSuccess) {
        end(packages_);
    } else {
        end(tl::unexpected(problem_.value_or(UpdateProblem())));
    }
}

void PackageKitTransaction::PropertiesChanged(const QString& interface, const QVariantMap& changed,
                                              const QStringList& /*invalidated*/) {
    heard();
    const QString percentage = u"Percentage"_s;
    if (interface == transaction && changed.contains(percentage) && onProgress) {
        const uint percent = changed.value(percentage).toUInt();
        onProgress(percent <= highestPercent ? std::optional(static_cast<int>(percent))
                                             : std::nullopt);
    }
}

void PackageKitTransaction::heard() {
    if (silence_.isActive()) {
        silence_.start(); // Restarts it.
    }
}

void PackageKitTransaction::end(Done done) {
    silence_.stop();
    if (const auto call = std::exchange(done_, nullptr)) {
        call(std::move(done)); // Which may destroy this.
    }
}

} // namespace ravelo
