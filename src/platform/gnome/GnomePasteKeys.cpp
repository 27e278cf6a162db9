#include "platform/gnome/GnomePasteKeys.h"

#include "platform/gnome/GnomePasteboard.h"
#include "platform/gnome/Layouts.h"

#include <chrono>
#include <utility>

namespace ravelo::gnome {

namespace {

using namespace std::chrono_literals;

constexpr auto interval = 20ms;
constexpr auto readyWithin = 1500ms; ///< Once the keyboard is open.
constexpr auto answerWithin = 60s;   ///< By the user; later keys would surprise them.

qint64 now() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

qint64 after(std::chrono::milliseconds delay) {
    return now() + delay.count();
}

} // namespace

GnomePasteKeys::GnomePasteKeys(Channel& channel, const GnomePasteboard& pasteboard,
                               RemoteKeyboard& keyboard)
    : channel_(channel),
      pasteboard_(pasteboard),
      keyboard_(keyboard),
      deliveries_(channel.onDelivery([this](Delivery& delivery) {
          if (const auto* report = std::get_if<KeyboardReport>(&delivery.report)) {
              heard(*report);
          }
      })) {
    again_.setInterval(interval);
    again_.callOnTimeout([this] { press_.has_value() && now() < press_->end ? ask() : end(); });
}

void GnomePasteKeys::ask() {
    channel_.send(askAboutKeyboard(++asked_));
}

std::optional<PasteKeys::Target> GnomePasteKeys::target() {
    channel_.receive(); // The report comes before the first key, but we may have read that first.
    if (permission() == TypingPermission::refused || !report_ || !report_->window) {
        return std::nullopt;
    }
    return Target{*report_->window, report_->names};
}

PasteKeys::Readiness GnomePasteKeys::latest(const Target& target) const {
    const bool known = report_ && channel_.isUp();
    return {.modifiersUp = known && !report_->modifiersDown,
            .ownsPasteboard = pasteboard_.isOwn(),
            .focused = known && report_->focused && report_->window == target.id};
}

PasteKeys::Readiness GnomePasteKeys::readiness(const Target& target) {
    ask();
    return latest(target);
}

void GnomePasteKeys::press(const Target& target, PasteChord chord) {
    again_.stop();
    since_ = 0;
    press_ = Press{target, chord, pasteboard_.changeCount(), after(answerWithin)};
    opening_ = keyboard_.open([this](bool open) { opened(open); });
}

void GnomePasteKeys::opened(bool open) {
    if (!press_ || !open || now() > press_->end) {
        end();
        return;
    }
    press_->end = after(readyWithin);
    since_ = asked_ + 1;
    ask();
    again_.start();
}

void GnomePasteKeys::heard(const KeyboardReport& report) {
    report_ = report;
    if (press_ && since_ > 0 && report.serial >= since_) {
        typeIfReady(*press_, report);
    }
}

void GnomePasteKeys::typeIfReady(const Press& press, const KeyboardReport& report) {
    if (pasteboard_.changeCount() != press.count) {
        end();
    } else if (latest(press.target).isComplete()) {
        using Letters = RemoteKeyboard::Letters;
        const bool hasV = hasLatinLetters(report.layout);
        keyboard_.type(press.chord, hasV ? Letters::byLayout : Letters::byPlace);
        end();
    }
}

void GnomePasteKeys::end() {
    again_.stop();
    press_.reset();
    since_ = 0;
    keyboard_.close();
}

} // namespace ravelo::gnome
