// Files that appear in a real folder, as inotify reports them to the watcher of received files.

#include "base/FileUrl.h"
#include "fakes/FakeNearby.h"
#include "fakes/ManualScheduler.h"
#include "platform/system/FolderFollower.h"
#include "platform/system/InotifyFolderWatch.h"
#include "shelf/ReceivedWatcher.h"
#include "support/Eventually.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <poll.h>

namespace ravelo {

namespace {

namespace fs = std::filesystem;

void write(const fs::path& path, const char* contents = "something") {
    EXPECT_TRUE(std::ofstream(path) << contents) << path;
}

/// Counts reports.
class CountedWatch final : public FolderWatch {
public:
    Handle watch(const QByteArray& path, std::function<void(const FolderNews&)> report) override {
        return watch_.watch(path, [this, report = std::move(report)](const FolderNews& news) {
            ++news_;
            report(news);
        });
    }

    [[nodiscard]] int news() const { return news_; }

private:
    InotifyFolderWatch watch_;
    int news_ = 0;
};

class FolderWatchTest : public testing::Test {
protected:
    /// Once it watches.
    void start() {
        watcher_ = std::make_unique<ReceivedWatcher>(watch_, scheduler_,
                                                     QString::fromStdString(downloads_.string()));
        ASSERT_TRUE(eventually([this] { return watch_.news() == 1; }));
    }

    [[nodiscard]] std::string names() const {
        QByteArrayList names;
        for (const QUrl& url : watcher_->files()) {
            names.append(filePath(url).split('/').last());
        }
        return names.join(' ').toStdString();
    }

    [[nodiscard]] testing::AssertionResult shows(const std::string& expected) {
        return eventually([&] {
            scheduler_.advance(Seconds(1)); // It notifies ten times a second.
            return names() == expected;
        })
                   ? testing::AssertionSuccess()
                   : testing::AssertionFailure() << "shows " << names();
    }

    QTemporaryDir folder_;
    const fs::path home_ = folder_.path().toStdString();
    const fs::path downloads_ = home_ / "a" / "b";
    ManualScheduler scheduler_;
    CountedWatch watch_;
    std::unique_ptr<ReceivedWatcher> watcher_;
};

TEST_F(FolderWatchTest, listsCompleteFilesThatStillExist) {
    fs::create_directories(downloads_ / "folder");
    write(downloads_ / "old");
    start();
    std::ofstream slow(downloads_ / "slow");
    slow << "half" << std::flush;
    write(downloads_ / "placeholder", "");
    write(downloads_ / "x.part");
    fs::rename(downloads_ / "x.part", downloads_ / "x");
    write(home_ / "elsewhere");
    fs::rename(home_ / "elsewhere", downloads_ / "b\xff%");
    EXPECT_TRUE(shows("x b\xff%"));
    slow.close();
    fs::rename(downloads_ / "folder", home_ / "folder");
    fs::rename(home_ / "folder", downloads_ / "folder");
    EXPECT_TRUE(shows("x b\xff% slow folder"));
    fs::rename(downloads_ / "x", downloads_ / "y");
    fs::rename(downloads_ / "b\xff%", home_ / "b");
    fs::remove(downloads_ / "folder");
    EXPECT_TRUE(shows("y slow"));
}

TEST_F(FolderWatchTest, followsAFolderThatIsCreatedMovedAndReplaced) {
    start();
    fs::create_directories(downloads_);
    write(downloads_ / "x");
    EXPECT_TRUE(shows("x")) << "written while we look";
    fs::rename(home_ / "a", home_ / "c");
    EXPECT_TRUE(shows(""));
    write(home_ / "c" / "b" / "y");
    const int before = watch_.news();
    fs::rename(home_ / "c", home_ / "a");
    ASSERT_TRUE(eventually([&] { return watch_.news() > before; }));
    write(downloads_ / "z");
    EXPECT_TRUE(shows("z")) << "x and y were there when the folder came";
    fs::remove_all(downloads_);
    EXPECT_TRUE(shows(""));

    fs::create_directories(home_ / "one");
    fs::create_directories(home_ / "two");
    fs::create_directory_symlink(home_ / "one", downloads_);
    EXPECT_TRUE(eventually([&, number = 0]() mutable {
        write(downloads_ / std::to_string(++number));
        scheduler_.advance(Seconds(1));
        return !names().empty();
    })) << "by a link";
    fs::create_directory_symlink(home_ / "two", home_ / "link");
    fs::rename(home_ / "link", downloads_);
    EXPECT_TRUE(shows(""));
    write(home_ / "one" / "y");
    write(downloads_ / "z");
    EXPECT_TRUE(shows("z")) << "by another link";
}

TEST_F(FolderWatchTest, survivesAnOverflowOfTheKernelsQueue) {
    int max = 0;
    std::ifstream("/proc/sys/fs/inotify/max_queued_events") >> max;
    ASSERT_LT(max, 100'000) << "too many for a test";
    std::vector<FolderNews> news;
    fs::create_directories(downloads_);
    FolderFollower follower(QByteArray::fromStdString(downloads_.string()),
                            [&](FolderNews one) { news.push_back(std::move(one)); });
    follower.proceed();
    for (int number = 0; number < max + 1000; ++number) {
        write(downloads_ / std::to_string(number));
    }
    write(downloads_ / "empty", "");
    pollfd waits{follower.descriptor(), POLLIN, 0};
    while (::poll(&waits, 1, 0) > 0) {
        follower.proceed();
    }

    FakeFolderWatch watch;
    const ReceivedWatcher watcher(watch, scheduler_, QString());
    for (const FolderNews& one : news) {
        watch.report(one);
    }
    scheduler_.advance(Seconds(1));
    EXPECT_EQ(watcher.files().size(), max + 1000);
    EXPECT_GT(watcher.files().last().fileName().toInt(), max) << "in their order";
}

} // namespace
} // namespace ravelo
