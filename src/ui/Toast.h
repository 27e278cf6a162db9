#pragma once

#include "base/Scheduler.h"

#include <QObject>
#include <QQmlEngine>

#include <vector>

namespace ravelo {

/// The short message over the panel. Each call schedules an end of its own; the first one to come
/// takes the message away, whichever call it belongs to. Main thread.
class Toast : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(ToastMessage)
    QML_UNCREATABLE("the panel has one")
    Q_PROPERTY(QString text READ text NOTIFY textChanged)

public:
    explicit Toast(Scheduler& scheduler) : scheduler_(scheduler) {}

    /// Empty while there is nothing to show.
    [[nodiscard]] QString text() const { return text_; }

    Q_INVOKABLE void flashCopied();
    void flash(const QString& text);

    /// For a panel that starts anew: no message, and no end that is still to come.
    void reset();

Q_SIGNALS:
    void textChanged();

private:
    void setText(const QString& text);

    Scheduler& scheduler_;
    QString text_;
    std::vector<Handle> ends_;
};

} // namespace ravelo
