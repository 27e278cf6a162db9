#pragma once

#include <QList>
#include <QUrl>

#include <mutex>

namespace ravelo {

/// Collects files from several threads. Any thread.
struct URLCollector {
    mutable std::mutex lock; ///< Guards `urls`.
    QList<QUrl> urls;

    void add(const QUrl& url) {
        const std::scoped_lock guard(lock);
        urls.append(url);
    }

    /// The files so far, in order of arrival.
    [[nodiscard]] QList<QUrl> collected() const {
        const std::scoped_lock guard(lock);
        return urls;
    }
};

} // namespace ravelo
