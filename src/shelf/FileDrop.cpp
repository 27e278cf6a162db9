#include "shelf/FileDrop.h"

#include "platform/DragOffer.h"
#include "platform/FileTransfer.h"
#include "shelf/DropLoading.h"

#include <algorithm>
#include <utility>

namespace ravelo {

FileDrop::FileDrop(FileTransfer& transfers, std::function<void()> answered)
    : transfers_(transfers), answered_(std::move(answered)) {}

Carries FileDrop::enter(std::shared_ptr<DragOffer> offer) {
    answers_ = offer ? offer->onAnswer([this] { answered_(); }) : Handle();
    over_ = OfferedFiles(std::move(offer));
    return carries();
}

void FileDrop::drop(Done done) {
    if (!over_.offer()) {
        return;
    }
    Drop& drop = drops_.emplace_back();
    drop.offered = std::exchange(over_, OfferedFiles());
    drop.loading = loadToShelf({[&drop](auto answer) {
                                   drop.answer = std::move(answer);
                               }},
                               std::move(done));
    answers_.reset();
    drop.answers = drop.offered.offer()->onAnswer([this, &drop] { look(drop); });
    look(drop);
}

void FileDrop::look(Drop& drop) {
    if (drop.retrieving) {
        return;
    }
    const auto& files = drop.offered.named();
    const auto& key = drop.offered.transferKey();
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
