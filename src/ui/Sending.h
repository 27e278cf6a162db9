#pragma once

#include "base/Handle.h"
#include "shelf/NearbySend.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>
#include <QVariantList>

namespace ravelo {

class Scheduler;
class Toast;

/// The button that sends files to a device nearby. Main thread.
class Sending : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the panel has one")
    Q_PROPERTY(bool possible READ isPossible NOTIFY changed)
    Q_PROPERTY(QString advice READ advice NOTIFY changed)
    Q_PROPERTY(QVariantList devices READ devices NOTIFY changed)

public:
    Sending(NearbySend& nearby, Scheduler& scheduler, Toast& toast);

    [[nodiscard]] bool isPossible() const;

    /// What the user could do where it is not possible; empty where it is.
    [[nodiscard]] QString advice() const;

    /// To choose from: objects with `name` and `id`. Devices may come and go while the user
    /// chooses.
    [[nodiscard]] QVariantList devices() const;

    /// While the button is on the screen it follows who comes into reach, or leaves it.
    Q_INVOKABLE void setShown(bool shown);

    /// To that one of the devices or, if there is none, with the desktop's own sending program.
    Q_INVOKABLE void send(const QList<QUrl>& files, const QVariantMap& device);

Q_SIGNALS:
    void changed();
    /// A program of the desktop has come up and asks whom to send to.
    void programStarted();

private:
    void refresh();
    void report(NearbySend::Outcome outcome, qsizetype all, const QString& device);

    NearbySend& nearby_;
    Scheduler& scheduler_;
    Toast& toast_;
    Handle changes_;
    Handle refreshing_;
    Handle looks_; ///< While it is shown.
};

} // namespace ravelo
