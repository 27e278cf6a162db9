#include "clipboard/CapturePause.h"

#include "platform/Preferences.h"

#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const auto key = u"capturePause"_s;

constexpr Seconds nextCopyWithin{30};

/// Some programs set the clipboard several times for one copy.
constexpr Seconds sameCopy{0.3};

} // namespace

CapturePause::CapturePause(Preferences& preferences, Scheduler& scheduler)
    : preferences_(preferences), scheduler_(scheduler) {
    const QJsonValue saved = preferences.value(key);
    if (!saved.isObject()) {
        return;
    }
    const QJsonValue until = saved[u"until"];
    pause_ = Pause{until.isDouble() ? std::optional(Timed{Date{until.toDouble()},
                                                          Seconds(saved[u"seconds"].toDouble())})
                                    : std::nullopt};
    awaitEnd();
}

void CapturePause::pause(std::optional<Seconds> length) {
    set(length ? Pause{Timed{Date{scheduler_.now().sinceReference + length->count()}, *length}}
               : Pause());
}

void CapturePause::resume() {
    ignoringUntil_.reset();
    if (pause_) {
        set({});
    }
}

void CapturePause::ignoreNext() {
    ignoringUntil_ = scheduler_.uptime() + nextCopyWithin;
}

std::optional<Date> CapturePause::until() const {
    return pause_ && pause_->timed ? std::optional(pause_->timed->until) : std::nullopt;
}

std::optional<Seconds> CapturePause::length() const {
    return pause_ && pause_->timed ? std::optional(pause_->timed->length) : std::nullopt;
}

Seconds CapturePause::remaining() const {
    const auto end = until();
    return end ? Seconds(std::max(0.0, end->sinceReference - scheduler_.now().sinceReference))
               : Seconds(0);
}

bool CapturePause::ignoresSelection() const {
    return pause_ || (ignoringUntil_ && scheduler_.uptime() <= *ignoringUntil_);
}

bool CapturePause::ignoresCopy() {
    if (pause_ && pause_->timed && remaining() <= Seconds(0)) {
        set({}); // The clock was set.
    }
    const Seconds now = scheduler_.uptime();
    if (!pause_ && ignoringUntil_ && now <= *ignoringUntil_) {
        ignoringUntil_ = std::min(*ignoringUntil_, now + sameCopy);
        return true;
    }
    return pause_.has_value();
}

/// The wall clock decides, because the user sees a time of day.
void CapturePause::awaitEnd() {
    end_.reset();
    if (pause_ && pause_->timed) {
        end_ = scheduler_.after(remaining(),
                                [this] { remaining() > Seconds(0) ? awaitEnd() : set({}); });
    }
}

void CapturePause::set(std::optional<Pause> pause) {
    pause_ = pause;
    QJsonValue saved;
    if (pause_) {
        saved = pause_->timed ? QJsonObject{{u"until"_s, pause_->timed->until.sinceReference},
                                            {u"seconds"_s, pause_->timed->length.count()}}
                              : QJsonObject();
    }
    preferences_.set(key, saved);
    awaitEnd();
    Q_EMIT changed();
}

} // namespace ravelo
