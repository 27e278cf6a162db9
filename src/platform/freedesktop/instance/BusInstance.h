#pragma once

#include "platform/freedesktop/instance/SingleInstance.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QVariantList>
#include <QVariantMap>

class QDBusMessage;

namespace ravelo {

/// The session bus, on a connection of ours.
[[nodiscard]] QDBusConnection sessionBus();

/// The instance that owns our name on the session bus.
class BusInstance final : public QObject, public SingleInstance {
    Q_OBJECT

public:
    [[nodiscard]] static std::unique_ptr<BusInstance> claim(const QDBusConnection& bus);
    [[nodiscard]] static std::optional<Answer> ask(const QDBusConnection& bus,
                                                   const QStringList& request,
                                                   const QByteArray& activationToken = {},
                                                   std::chrono::milliseconds timeout = answerTime);

private:
    explicit BusInstance(const QDBusConnection& bus);
};

/// For scripts: the words of the command line in, an `Answer` out. The platform data, if any, are
/// those of the Desktop Entry Specification.
class AskAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.ravelo.Ravelo")

public:
    AskAdaptor(BusInstance& instance, const QDBusConnection& bus);

public Q_SLOTS:
    // Upper case as on every bus. NOLINTBEGIN(readability-identifier-naming)
    void Ask(const QStringList& request, const QDBusMessage& call, int& status, QByteArray& output,
             QString& errors);
    void Ask(const QStringList& request, const QVariantMap& platformData, const QDBusMessage& call,
             int& status, QByteArray& output, QString& errors);
    // NOLINTEND(readability-identifier-naming)

private:
    BusInstance& instance_;
    QDBusConnection bus_;
};

/// For desktops (Desktop Entry Specification, D-Bus Activation).
class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    ApplicationAdaptor(BusInstance& instance, const QDBusConnection& bus);

public Q_SLOTS:
    // The names are the interface's own. NOLINTBEGIN(readability-identifier-naming)
    void Activate(const QVariantMap& platformData, const QDBusMessage& call);
    void ActivateAction(const QString& name, const QVariantList& parameter,
                        const QVariantMap& platformData, const QDBusMessage& call);
    void Open(const QStringList& uris, const QVariantMap& platformData, const QDBusMessage& call);
    // NOLINTEND(readability-identifier-naming)

private:
    void act(const QStringList& request, const QVariantMap& platformData, const QDBusMessage& call);

    BusInstance& instance_;
    QDBusConnection bus_;
};

} // namespace ravelo
