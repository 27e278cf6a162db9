#include "fakes/MemoryPasteboard.h"

#include <memory>

namespace ravelo {

Handle MemoryPasteboard::onChange(std::function<void()> callback) {
    return listeners_.add(std::move(callback));
}

Handle MemoryPasteboard::read(PasteboardPlan plan, std::function<void(PasteboardSnapshot)> done) {
    auto answer = [this, count = changeCount_, plan = std::move(plan), done = std::move(done)] {
        if (count == changeCount_ && !silent_) {
            done(follow(plan));
        }
    };
    return scheduler_.after(answerTime, std::move(answer));
}

PasteboardSnapshot MemoryPasteboard::follow(const PasteboardPlan& plan) {
    PasteboardSnapshot snapshot;
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

void MemoryPasteboard::write(const QList<PasteboardEntry>& forms) {
    replace(forms);
}

void MemoryPasteboard::offer(const QList<PasteboardEntry>& forms) {
    replace(forms);
    if (tellsChanges) {
        listeners_.notify();
    }
}

void MemoryPasteboard::offerText(const QString& text) {
    offer({{plainTextType, text.toUtf8()}});
}

void MemoryPasteboard::offerSilence() {
    replace({});
    silent_ = true;
    if (tellsChanges) {
        listeners_.notify();
    }
}

void MemoryPasteboard::replace(const QList<PasteboardEntry>& forms) {
    forms_ = forms;
    silent_ = false;
    ++changeCount_;
}

} // namespace ravelo
