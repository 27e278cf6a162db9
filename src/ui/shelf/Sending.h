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

/// The button that sends files to a nearby device. Main thread.
class Sending : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(bool possible READ isPossible NOTIFY changed)
    Q_PROPERTY(QString advice READ advice NOTIFY changed)
    Q_PROPERTY(QVariantList devices READ devices NOTIFY changed)

public:
    Sending(NearbySend& nearby, Scheduler& scheduler, Toast& toast);

    [[nodiscard]] bool isPossible() const;

    /// What the user can do to make sending possible; empty if it is.
    [[nodiscard]] QString advice() const;

    /// Objects with `name` and `id`. The list can change while the user chooses.
    [[nodiscard]] QVariantList devices() const;

    /// Discovers devices while the button is visible.
    Q_INVOKABLE void setShown(bool shown);

    /// To one of the devices or, if there is none, with the desktop's sending program.
    Q_INVOKABLE void send(const QList<QUrl>& files, const QVariantMap& device);

Q_SIGNALS:
    void changed();
    /// A desktop program has opened and asks for the recipient.
    void programStarted();

private:
    void refresh();
    void report(NearbySend::Outcome outcome, qsizetype all, const QString& device);

    NearbySend& nearby_;
    Scheduler& scheduler_;
    Toast& toast_;
    Handle changes_;
    Handle refreshing_;
    Handle looks_; ///< While visible.
};

} // namespace ravelo
