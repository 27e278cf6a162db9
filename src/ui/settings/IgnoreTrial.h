#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace ravelo {

/// What the settings say about the user's patterns while they are typed. Main thread.
class IgnoreTrial : public QObject {
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    /// What is wrong with an expression, and where; empty if nothing.
    [[nodiscard]] Q_INVOKABLE static QString mistake(const QString& expression);

    /// Whether a text would be ignored, and why.
    [[nodiscard]] Q_INVOKABLE static QString answer(const QString& text,
                                                    const QStringList& expressions);
    [[nodiscard]] Q_INVOKABLE static bool isIgnored(const QString& text,
                                                    const QStringList& expressions);
};

} // namespace ravelo
