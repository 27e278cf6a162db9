#include "shelf/FileDrop.h"

#include "platform/DragMonitor.h"
#include "platform/FileTransfer.h"
#include "shelf/DropLoading.h"

#include <algorithm>
#include <utility>

namespace ravelo {

FileDrop::FileDrop(DragMonitor& drags, FileTransfer& transfers)
    : drags_(drags), transfers_(transfers), answers_(drags.onChange([this] { look(); })) {}

Carries FileDrop::enter() {
    (void)drags_.files(); // Asks the source.
    (void)drags_.transferKey();
    over_ = drags_.answers();
    return carries();
}

Carries FileDrop::carries() {
    if (!over_) {
        return enter();
    }
    const auto& [files, key] = *over_;
    if ((files && !files->isEmpty()) || (key && !key->isEmpty())) {
        return Carries::files;
    }
    return files && key ? Carries::nothing : Carries::unknown;
}

void FileDrop::take(Done done) {
    (void)carries(); // Even if no drag was reported to enter.
    Drop& drop = drops_.emplace_back();
    drop.answers = std::exchange(over_, nullptr);
    drop.loading = loadToShelf({[&drop](auto answer) {
                                   drop.answer = std::move(answer);
                               }},
                               std::move(done));
    look(drop);
}

void FileDrop::look() {
    for (auto next = drops_.begin(); next != drops_.end();) {
        look(*next++);
    }
}

void FileDrop::look(Drop& drop) {
    if (drop.retrieving) {
        return;
    }
    const auto& [files, key] = *drop.answers;
    if (files && key && key->isEmpty()) {
        end(drop, *files);
    } else if (files && key) {
        // Prefer the key: sandboxed sources name files as they see them themselves.
        drop.retrieving =
            transfers_.retrieve(*key, [this, &drop, named = *files](const QList<QUrl>& retrieved) {
                end(drop, retrieved.isEmpty() ? named : retrieved);
            });
    }
}

void FileDrop::end(Drop& drop, const QList<QUrl>& files) {
    std::list<Drop> ended; // Destroyed at the end.
    ended.splice(ended.end(), drops_,
                 std::ranges::find_if(drops_, [&](const Drop& other) { return &other == &drop; }));
    drop.answer(files);
}

} // namespace ravelo
