#include "clipboard/SelectedTexts.h"

#include "base/Scheduler.h"
#include "clipboard/CapturePause.h"
#include "platform/SelectedText.h"
#include "store/Store.h"

#include <utility>

namespace ravelo {

namespace {

/// Programs report a selection with every motion of the pointer.
constexpr Seconds untilSelected{0.7};

} // namespace

SelectedTexts::SelectedTexts(Store& store, SelectedText& selection, Scheduler& scheduler,
                             const CapturePause& pause)
    : store_(store), selection_(selection), scheduler_(scheduler), pause_(pause) {
    connect(&store, &Store::cleared, this, &SelectedTexts::drop);
    connect(&pause, &CapturePause::changed, this, [this] {
        if (pause_.isPaused()) {
            drop();
        }
    });
}

void SelectedTexts::setOn(bool on) {
    selection_.setWatch(on ? SelectedText::Watch::on : SelectedText::Watch::off);
    changes_ = on ? selection_.onChange([this] { wait(); }) : Handle();
    drop();
}

void SelectedTexts::drop() {
    rest_.reset();
    reading_.reset();
}

void SelectedTexts::wait() {
    reading_.reset();
    rest_ =
        pause_.ignoresSelection() ? Handle() : scheduler_.after(untilSelected, [this] { read(); });
}

void SelectedTexts::read() {
    const auto plan = [programs = rules_.programs](const PasteboardSnapshot& snapshot) {
        const bool done =
            snapshot.answers.contains(plainTextType) || !snapshot.types.contains(plainTextType);
        return done || isOfProgram(snapshot.owner, programs) ? QString()
                                                             : nextCaptureType(snapshot);
    };
    reading_ = selection_.read(plan, [this](const auto& snapshot) { keep(snapshot); });
}

void SelectedTexts::keep(const PasteboardSnapshot& snapshot) {
    const QString text = capturedText(snapshot, textEnds_);
    if (text.isEmpty() || isConcealed(snapshot)) {
        return;
    }
    Judging judging;
    judging.judge = [rules = rules_](const QString& selected) {
        return judge(rules, selected);
    };
    judging.takes = rules_.patterns.isEmpty() ? Judging::Takes::moment : Judging::Takes::longer;
    store_.addClip(text, {}, std::move(judging));
}

} // namespace ravelo
