#include "shelf/DropLoading.h"

#include "shelf/URLCollector.h"

#include <QCoreApplication>

#include <atomic>
#include <memory>
#include <utility>

namespace ravelo {

namespace {

struct Group {
    URLCollector collector;
    std::atomic<qsizetype> missing = 0;           ///< Answers to come.
    std::function<void(const QList<QUrl>&)> done; ///< For the main thread only.
};

void end(Group& group) {
    const auto done = std::exchange(group.done, nullptr);
    const QList<QUrl> files = group.collector.collected();
    if (done && !files.isEmpty()) {
        done(files);
    }
}

} // namespace

Handle loadToShelf(const QList<ItemProvider>& providers,
                   std::function<void(const QList<QUrl>&)> done) {
    const auto group = std::make_shared<Group>();
    group->missing = providers.size();
    group->done = std::move(done);
    for (const ItemProvider& ask : providers) {
        ask([group](const QList<QUrl>& files) {
            for (const QUrl& file : files) {
                group->collector.add(file);
            }
            if (--group->missing == 0) {
                QMetaObject::invokeMethod(qApp, [group] { end(*group); });
            }
        });
    }
    return Handle([group] { group->done = nullptr; });
}

} // namespace ravelo
