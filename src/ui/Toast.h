#pragma once

#include "base/Scheduler.h"

#include <QObject>
#include <QQmlEngine>

#include <functional>
#include <optional>
#include <vector>

namespace ravelo {

/// The short message over the panel. Each message schedules an end of its own; the first one to
/// come takes it away, whichever message it belongs to. An offer has a button and stays for ten
/// seconds, below messages that come meanwhile. Main thread.
class Toast : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(ToastMessage)
    QML_UNCREATABLE("the panel has one")
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    Q_PROPERTY(QString action READ action NOTIFY textChanged)
    /// Also while another message lies over the offer.
    Q_PROPERTY(bool offering READ isOffering NOTIFY textChanged)
    Q_PROPERTY(bool held READ isHeld WRITE setHeld NOTIFY heldChanged)

public:
    explicit Toast(Scheduler& scheduler) : scheduler_(scheduler) {}

    /// Empty while there is nothing to show.
    [[nodiscard]] QString text() const;

    /// What the button says; empty while there is none.
    [[nodiscard]] QString action() const;

    [[nodiscard]] bool isOffering() const { return offer_.has_value(); }

    Q_INVOKABLE void flashCopied();
    void flash(const QString& text);

    /// In place of the message and the offer that are there. `act` is destroyed with the offer.
    void offer(const QString& text, const QString& action, std::function<void()> act);

    /// Does what is offered, once; false if nothing is.
    Q_INVOKABLE bool act();

    /// How many offers there have been.
    Q_INVOKABLE [[nodiscard]] int offers() const { return offers_; }

    [[nodiscard]] bool isHeld() const { return held_; }

    /// The time of the offer stands still: the user is about to choose.
    void setHeld(bool held);

    /// For a panel that starts anew: no message, no offer, and no end that is still to come.
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
        Seconds begun{}; ///< When `left` was what is left.
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
