#include "shelf/Shelf.h"

#include <algorithm>
#include <iterator>

namespace ravelo {

QList<QUrl> Shelf::files() const {
    QList<QUrl> all;
    for (const QList<QUrl>& stack : stacks) {
        all.append(stack);
    }
    return all;
}

QList<QUrl> Shelf::selectedFiles() const {
    QList<QUrl> chosen = files();
    chosen.removeIf([this](const QUrl& url) { return !selected.contains(url); });
    return chosen;
}

std::optional<Shelf> Shelf::added(const QList<QUrl>& urls) const {
    const QList<QUrl> all = files();
    const QSet<QUrl> parked(all.begin(), all.end());
    QList<QUrl> fresh;
    std::ranges::copy_if(urls, std::back_inserter(fresh),
                         [&](const QUrl& url) { return !parked.contains(url); });
    if (fresh.isEmpty()) {
        return std::nullopt;
    }
    Shelf shelf = *this;
    shelf.selected.unite(QSet(fresh.begin(), fresh.end()));
    shelf.stacks.append(std::move(fresh));
    return shelf;
}

Shelf Shelf::removed(const QSet<QUrl>& urls) const {
    Shelf shelf = *this;
    for (QList<QUrl>& stack : shelf.stacks) {
        stack.removeIf([&](const QUrl& url) { return urls.contains(url); });
    }
    shelf.stacks.removeIf([](const QList<QUrl>& stack) { return stack.isEmpty(); });
    shelf.selected.subtract(urls);
    return shelf;
}

Shelf Shelf::restored(const Shelf& before) const {
    const QSet<QUrl> gone = goneSince(before);
    Shelf shelf = *this;
    if (before.removed(gone).stacks == stacks) {
        shelf.stacks = before.stacks;
    } else if (!gone.isEmpty()) {
        QList<QUrl> stack = before.files();
        stack.removeIf([&](const QUrl& url) { return !gone.contains(url); });
        shelf.stacks.append(std::move(stack));
    }
    shelf.selected.unite(QSet(before.selected).intersect(gone));
    return shelf;
}

QSet<QUrl> Shelf::goneSince(const Shelf& before) const {
    const QList<QUrl> then = before.files();
    const QList<QUrl> now = files();
    return QSet(then.begin(), then.end()).subtract(QSet(now.begin(), now.end()));
}

Shelf Shelf::stackToggled(const QList<QUrl>& stack) const {
    Shelf shelf = *this;
    const QSet<QUrl> files(stack.begin(), stack.end());
    if (selected.contains(files)) {
        shelf.selected.subtract(files);
    } else {
        shelf.selected.unite(files);
    }
    return shelf;
}

} // namespace ravelo
