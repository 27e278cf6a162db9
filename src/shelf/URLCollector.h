#pragma once

#include <QList>
#include <QUrl>

#include <mutex>

namespace ravelo {

/// Gathers the files that come from several sides at a time. Any thread.
struct URLCollector {
    mutable std::mutex lock; ///< Guards `urls`.
    QList<QUrl> urls;

    void add(const QUrl& url) {
        const std::scoped_lock guard(lock);
        urls.append(url);
    }

    /// What has come so far, in that order.
    [[nodiscard]] QList<QUrl> collected() const {
        const std::scoped_lock guard(lock);
        return urls;
    }
};

} // namespace ravelo
