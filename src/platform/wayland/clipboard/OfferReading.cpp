#include "platform/wayland/clipboard/OfferReading.h"

#include "base/ClipboardText.h"

#include <utility>

namespace ravelo::wayland {

OfferReading::OfferReading(DataControl& control, Pipes& pipes, DataControl::Types types,
                           PasteboardSnapshot known, PasteboardPlan plan, Done done)
    : control_(control),
      pipes_(pipes),
      types_(std::move(types)),
      snapshot_(std::move(known)),
      plan_(std::move(plan)),
      done_(std::move(done)) {
    for (const QByteArray& name : std::as_const(types_)) {
        const QString type = isPlainText(name) ? QString(plainTextType) : QString::fromUtf8(name);
        if (!snapshot_.types.contains(type)) {
            snapshot_.types.append(type);
        }
    }
}

OfferReading::~OfferReading() {
    pipes_.cancel(reading_);
}

void OfferReading::proceed() {
    while (names_.isEmpty()) {
        wanted_ = plan_(snapshot_);
        if (wanted_.isEmpty() || snapshot_.answers.contains(wanted_)) {
            const auto done = std::exchange(done_, nullptr);
            done(std::move(snapshot_));
            return;
        }
        snapshot_.answers.insert(wanted_, std::nullopt);
        names_ = namesOf(wanted_);
    }
    ask(names_.takeFirst());
}

DataControl::Types OfferReading::namesOf(const QString& type) const {
    if (type == plainTextType) {
        return textTargets(types_);
    }
    const QByteArray name = type.toUtf8();
    return types_.contains(name) ? DataControl::Types{name} : DataControl::Types();
}

void OfferReading::ask(const QByteArray& name) {
    Pipe pipe;
    if (pipe.readEnd) {
        control_.receive(name, pipe.writeEnd);
    }
    reading_ = pipes_.read(std::move(pipe.readEnd), maxAnswerSize(name),
                           [this, name](PipeResult result) { take(name, std::move(result)); });
}

/// An owner refuses by giving nothing: GTK does for names that are no MIME types, such as a
/// password manager's mark.
void OfferReading::take(const QByteArray& name, PipeResult result) {
    if (result && !result->isEmpty()) {
        names_.clear();
        snapshot_.answers[wanted_] =
            wanted_ == plainTextType ? toUtf8(name, name, *result) : std::move(*result);
    } else if (!result && result.error().reason != PipeFailure::broken) {
        names_.clear(); // It would be as slow or as large under another name.
    }
    if (!result && result.error().reason == PipeFailure::tooLarge) {
        snapshot_.tooLarge.insert(wanted_, result.error().bytes);
    }
    proceed();
}

} // namespace ravelo::wayland
