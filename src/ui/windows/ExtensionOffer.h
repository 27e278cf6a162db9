#pragma once

#include "base/Handle.h"
#include "platform/DesktopExtension.h"

#include <QObject>
#include <QQmlEngine>

namespace ravelo {

/// What setup and settings say about the desktop's extension, and their button. Main thread.
class ExtensionOffer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(bool isOffered READ isOffered NOTIFY changed)
    Q_PROPERTY(bool canTurnOn READ canTurnOn NOTIFY changed)
    Q_PROPERTY(bool isWaiting READ isWaiting NOTIFY changed)
    Q_PROPERTY(bool waitsForLogin READ waitsForLogin NOTIFY changed)
    Q_PROPERTY(QString next READ next NOTIFY changed)

public:
    /// `extension` outlives this; null if the desktop needs none.
    explicit ExtensionOffer(DesktopExtension* extension);

    /// Whether there is something to say.
    [[nodiscard]] bool isOffered() const;

    [[nodiscard]] bool canTurnOn() const;

    /// It is turned on, and used after the next login or start.
    [[nodiscard]] bool isWaiting() const;

    /// It is turned on and will be there after the next login.
    [[nodiscard]] bool waitsForLogin() const;

    /// What the user has to do next, besides turning it on; empty if nothing.
    [[nodiscard]] QString next() const;

    Q_INVOKABLE void turnOn();

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] DesktopExtension::State state() const;

    DesktopExtension* extension_;
    Handle changes_;
};

} // namespace ravelo
