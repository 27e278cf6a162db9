#pragma once

#include <QObject>
#include <QQmlEngine>

namespace ravelo {

class NightShift;
class ShutDown;

/// Night shift and shutdown, for the buttons at the top right. Main thread.
class PanelActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")

public:
    /// Both outlive this.
    PanelActions(NightShift& nightShift, ShutDown& shutDown)
        : nightShift_(nightShift), shutDown_(shutDown) {}

    Q_INVOKABLE void startNightShift();
    Q_INVOKABLE void shutDown();

private:
    NightShift& nightShift_;
    ShutDown& shutDown_;
};

} // namespace ravelo
