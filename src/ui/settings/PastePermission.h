#pragma once

#include "base/Handle.h"

#include <QObject>
#include <QQmlEngine>

namespace ravelo {

class PasteKeys;

/// What the settings say if the desktop asks the user before it lets us type. Main thread.
class PastePermission : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    /// One sentence for the user; empty if there is nothing to say.
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(bool refused READ isRefused NOTIFY changed)

public:
    /// `keys` outlives this; null if nothing can be typed.
    explicit PastePermission(PasteKeys* keys);

    [[nodiscard]] QString note() const;
    [[nodiscard]] bool isRefused() const;

    /// The desktop may ask again.
    Q_INVOKABLE void forgetRefusal();

Q_SIGNALS:
    void changed();

private:
    PasteKeys* keys_;
    Handle changes_;
};

} // namespace ravelo
