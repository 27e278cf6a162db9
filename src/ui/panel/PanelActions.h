#pragma once

#include <QObject>
#include <QQmlEngine>

namespace ravelo {

class NightShift;
class ShutDown;

/// What the buttons at the panel's top right do to the computer. Main thread.
class PanelActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")

public:
    /// Both outlive it.
    PanelActions(NightShift& nightShift, ShutDown& shutDown)
        : nightShift_(nightShift), shutDown_(shutDown) {}

    Q_INVOKABLE void startNightShift();
    Q_INVOKABLE void shutDown();

private:
    NightShift& nightShift_;
    ShutDown& shutDown_;
};

} // namespace ravelo
