#pragma once

#include "base/Listeners.h"
#include "platform/RemoteKeyboard.h"

#include <QObject>
#include <QProcessEnvironment>
#include <QString>

#include <memory>

class QProcess;

namespace ravelo {

class Preferences;

/// The portal org.freedesktop.portal.RemoteDesktop, by a child, `ravelo-portal`: the portal refuses
/// callers that it cannot inspect, as it cannot inspect us. A session lasts as long as its child.
/// With the token that the portal gave for the last session, the next one needs no question, so it
/// ends with `close`; a portal that gives none would ask each time, so it stays. Main thread.
class PortalKeyboard final : public QObject, public RemoteKeyboard {
public:
    /// `program` is the path of ravelo-portal. It gets the variables of `environment` for the bus.
    /// The preferences, which must outlive it, keep the token, and that the user refused.
    PortalKeyboard(QString program, const QProcessEnvironment& environment,
                   Preferences& preferences);
    ~PortalKeyboard() override;

    [[nodiscard]] TypingPermission permission() const override;

    [[nodiscard]] Handle onPermissionChange(std::function<void()> callback) override {
        return changes_.add(std::move(callback));
    }

    void forgetRefusal() override;
    [[nodiscard]] Handle open(std::function<void(bool)> done) override;
    void type(PasteChord chord, Letters letters) override;
    void close() override;

private:
    void startChild();
    void hear();
    void failed();
    void endChild(bool unavailable);
    void letGo();
    void finish(bool open);
    void remember(const QString& token, bool refused);

    QString program_;
    QProcessEnvironment environment_;
    Preferences& preferences_;
    QProcess* child_ = nullptr; ///< While there is a session, or one is being opened.
    bool open_ = false;         ///< The session.
    bool unavailable_ = false;  ///< At the last attempt.
    std::shared_ptr<std::function<void(bool)>> done_;
    Listeners<> changes_;
};

} // namespace ravelo
