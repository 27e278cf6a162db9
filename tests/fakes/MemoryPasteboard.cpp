#include "fakes/MemoryPasteboard.h"

#include <memory>
#include <utility>

namespace ravelo {

Handle MemoryPasteboard::onChange(std::function<void()> callback) {
    return listeners_.add(std::move(callback));
}

Handle MemoryPasteboard::read(PasteboardPlan plan, std::function<void(PasteboardSnapshot)> done) {
    passTime();
    auto answer = [this, count = changeCount_, plan = std::move(plan), done = std::move(done)] {
        if (count == changeCount_ && !silent_) {
            done(follow(plan));
        }
    };
    return scheduler_.after(answerTime, std::move(answer));
}

PasteboardSnapshot MemoryPasteboard::follow(const PasteboardPlan& plan) {
    PasteboardSnapshot snapshot;
    snapshot.changeCount = changeCount_;
    snapshot.owner = owner;
    if (naming_ == Naming::off) {
        snapshot.owner.names.clear();
    }
    snapshot.tooLarge = tooLarge;
    if (lastEnd_) {
        snapshot.lastEnd = {lastEnd_->changeCount, lastChange_ - lastEnd_->time};
    }
    for (const PasteboardEntry& form : forms_) {
        snapshot.types.append(form.type);
    }
    for (QString type = plan(snapshot); !type.isEmpty(); type = plan(snapshot)) {
        asked_.append(type);
        const QByteArray found = bytes(QLatin1StringView(type.toLatin1()));
        snapshot.answers.insert(type, found.isNull() ? std::nullopt : std::optional(found));
    }
    return snapshot;
}

QByteArray MemoryPasteboard::bytes(QLatin1StringView type) const {
    for (const PasteboardEntry& form : forms_) {
        if (form.type == type) {
            return form.bytes;
        }
    }
    return {};
}

qint64 MemoryPasteboard::write(const QList<PasteboardEntry>& forms) {
    replace(forms);
    const qint64 count = changeCount_;
    passTime();
    return count;
}

void MemoryPasteboard::passTime() {
    if (const auto happens = std::exchange(meanwhile, nullptr)) {
        happens();
    }
}

void MemoryPasteboard::offer(const QList<PasteboardEntry>& forms) {
    replace(forms);
    notify();
}

void MemoryPasteboard::offerText(const QString& text) {
    offer({{plainTextType, text.toUtf8()}});
}

void MemoryPasteboard::offerSilence() {
    replace({});
    silent_ = true;
    notify();
}

void MemoryPasteboard::release() {
    if (orphansAre == Orphans::orCleared) {
        loseOwner();
        return;
    }
    replace({});
    notify();
}

void MemoryPasteboard::loseOwner() {
    const qint64 lost = changeCount_;
    replace({});
    orphaned_ = lost;
    lastEnd_ = {lost, scheduler_.uptime()};
    notify();
}

std::optional<qint64> MemoryPasteboard::adopt(const QList<PasteboardEntry>& forms) {
    return orphaned_ ? std::optional(write(forms)) : std::nullopt;
}

Handle MemoryPasteboard::onSaveRequest(std::function<void()> callback) {
    return saveListeners_.add(std::move(callback));
}

void MemoryPasteboard::answerSaveRequests(qint64 count, SaveAnswer answer) {
    if (count == changeCount_ && std::exchange(saveAsked_, false)) {
        saveAnswer_ = answer;
    }
}

void MemoryPasteboard::askToSave() {
    saveAsked_ = true;
    saveAnswer_.reset();
    saveListeners_.notify();
}

void MemoryPasteboard::notify() {
    if (notifies) {
        listeners_.notify();
    }
}

void MemoryPasteboard::replace(const QList<PasteboardEntry>& forms) {
    forms_ = forms;
    silent_ = false;
    orphaned_.reset();
    answerSaveRequests(changeCount_, SaveAnswer::refused);
    ++changeCount_;
    lastChange_ = scheduler_.uptime();
}

} // namespace ravelo
