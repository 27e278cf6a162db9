#pragma once

#include "base/Scheduler.h"
#include "ui/text/Typing.h"

#include <QObject>
#include <QQmlEngine>

#include <functional>
#include <optional>
#include <vector>

namespace ravelo {

/// The short message over the panel. Each message schedules its own end; the first end that comes
/// removes whatever message is shown. An offer has a button, lasts ten seconds, and is shown again
/// after later messages. Main thread.
class Toast : public QObject, public UndoOffers {
    Q_OBJECT
    QML_NAMED_ELEMENT(ToastMessage)
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    Q_PROPERTY(QString action READ action NOTIFY textChanged)
    /// Also while another message covers the offer.
    Q_PROPERTY(bool offering READ isOffering NOTIFY textChanged)
    Q_PROPERTY(bool held READ isHeld WRITE setHeld NOTIFY heldChanged)

public:
    explicit Toast(Scheduler& scheduler) : scheduler_(scheduler) {}

    /// Empty if nothing is shown.
    [[nodiscard]] QString text() const;

    /// Text of the button; empty if there is none.
    [[nodiscard]] QString action() const;

    [[nodiscard]] bool isOffering() const { return offer_.has_value(); }

    void flashCopied();
    void flash(const QString& text);

    /// Replaces the message and the offer. `act` is destroyed with the offer.
    void offer(const QString& text, const QString& action, std::function<void()> act);

    /// Accepts the offer, once; false if there is none.
    Q_INVOKABLE bool act() override;

    [[nodiscard]] int offers() const override { return offers_; }

    [[nodiscard]] bool isHeld() const { return held_; }

    /// Pauses the offer's time while the user is about to choose.
    void setHeld(bool held);

    /// No message, no offer, no pending end.
    void reset();

Q_SIGNALS:
    void textChanged();
    void heldChanged();

private:
    struct Offer {
        QString text;
        QString action;
        std::function<void()> act;
        Seconds left;
        Seconds begun{}; ///< When `left` began to run.
        Handle end;
    };

    void setMessage(const QString& text);
    void runOffer();
    void endOffer();

    Scheduler& scheduler_;
    QString message_;
    std::vector<Handle> ends_;
    std::optional<Offer> offer_;
    int offers_ = 0;
    bool held_ = false;
};

} // namespace ravelo
