#include "platform/system/InotifyFolderWatch.h"

#include "base/SignalsBlocked.h"
#include "platform/system/FolderFollower.h"
#include "platform/system/MainThread.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <poll.h>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace ravelo {

namespace {

/// Enough for any thread that is not stuck.
constexpr std::chrono::milliseconds endTimeout{200};

/// Shared by both threads.
class Watching : public std::enable_shared_from_this<Watching> {
public:
    explicit Watching(std::function<void(const FolderNews&)> notify) : notify_(std::move(notify)) {}

    ~Watching() { close(stop_); }

    Watching(const Watching&) = delete;
    Watching& operator=(const Watching&) = delete;

    /// The thread.
    void follow(const QByteArray& path) {
        FolderFollower follower(path, [this](FolderNews news) { add(std::move(news)); });
        pollfd waits[] = {{follower.descriptor(), POLLIN, 0}, {stop_, POLLIN, 0}};
        while (waits[1].revents == 0) {
            follower.proceed();
            ::poll(waits, std::size(waits), -1);
        }
        const std::scoped_lock lock(mutex_);
        ended_ = true;
        end_.notify_all();
    }

    /// Main thread. No more notifications.
    void stop() {
        mainThread_.close();
        notify_ = nullptr;
        const uint64_t one = 1;
        [[maybe_unused]] const auto written = ::write(stop_, &one, sizeof one);
        std::unique_lock lock(mutex_);
        end_.wait_for(lock, endTimeout, [this] { return ended_; });
    }

private:
    /// Called once for all news that came before.
    void add(FolderNews news) {
        const std::scoped_lock lock(mutex_);
        if (news.listing || pending_.empty()) {
            pending_.push_back(std::move(news));
        } else {
            pending_.back().changes.append(std::move(news.changes));
        }
        if (!std::exchange(called_, true)) {
            mainThread_.post([self = shared_from_this()] { self->deliver(); });
        }
    }

    void deliver() {
        std::vector<FolderNews> all;
        {
            const std::scoped_lock lock(mutex_);
            all.swap(pending_);
            called_ = false;
        }
        for (const FolderNews& news : all) {
            if (const auto notify = notify_) { // The callback may end the watch.
                notify(news);
            }
        }
    }

    MainThread mainThread_;
    int stop_ = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    std::function<void(const FolderNews&)> notify_; ///< For the main thread only.
    std::mutex mutex_;                              ///< Guards what follows.
    std::vector<FolderNews> pending_;
    bool called_ = false;
    bool ended_ = false;
    std::condition_variable end_;
};

} // namespace

Handle InotifyFolderWatch::watch(const QByteArray& path,
                                 std::function<void(const FolderNews&)> notify) {
    const auto watching = std::make_shared<Watching>(std::move(notify));
    const SignalsBlocked blocked;
    std::thread thread([watching, path] { watching->follow(path); });
    pthread_setname_np(thread.native_handle(), "folder-watch");
    thread.detach();
    return Handle([watching] { watching->stop(); });
}

} // namespace ravelo
