#include "ui/controls/Toast.h"

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds toastTime(1.1);
constexpr Seconds offerTime(10);

} // namespace

QString Toast::text() const {
    return message_.isEmpty() && offer_ ? offer_->text : message_;
}

QString Toast::action() const {
    return message_.isEmpty() && offer_ ? offer_->action : QString();
}

void Toast::flashCopied() {
    flash(tr("Copied \u2713"));
}

void Toast::flash(const QString& text) {
    setMessage(text);
    ends_.push_back(scheduler_.after(toastTime, [this] {
        // The oldest flash is the one that ends.
        const Handle done = std::move(ends_.front());
        ends_.erase(ends_.begin());
        setMessage({});
    }));
}

void Toast::offer(const QString& text, const QString& action, std::function<void()> act) {
    ends_.clear();
    message_.clear();
    offer_ = {text, action, std::move(act), offerTime, {}, {}};
    ++offers_;
    if (!held_) {
        runOffer();
    }
    Q_EMIT textChanged();
}

bool Toast::act() {
    if (!offer_) {
        return false;
    }
    const std::function<void()> act = std::move(offer_->act);
    endOffer();
    act();
    return true;
}

void Toast::setHeld(bool held) {
    if (held == held_) {
        return;
    }
    held_ = held;
    if (offer_ && held) {
        offer_->left -= scheduler_.uptime() - offer_->begun;
        offer_->end.reset();
    } else if (offer_) {
        runOffer();
    }
    Q_EMIT heldChanged();
}

void Toast::runOffer() {
    offer_->begun = scheduler_.uptime();
    offer_->end = scheduler_.after(offer_->left, [this] { endOffer(); });
}

void Toast::endOffer() {
    const std::optional<Offer> ended = std::exchange(offer_, std::nullopt);
    Q_EMIT textChanged();
}

void Toast::reset() {
    ends_.clear();
    message_.clear();
    endOffer();
}

void Toast::setMessage(const QString& text) {
    if (text != message_) {
        message_ = text;
        Q_EMIT textChanged();
    }
}

} // namespace ravelo
