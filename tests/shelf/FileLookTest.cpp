#include "shelf/FileLook.h"

#include "base/FileUrl.h"
#include "fakes/ManualScheduler.h"
#include "platform/DetachedJobs.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace ravelo {

namespace {

/// Runs each job only on demand, so that any of them can hang.
class HeldJobs final : public DetachedJobs {
public:
    Handle run(std::function<void()> job, std::function<void()> done) override {
        const auto held = std::make_shared<Job>(Job{std::move(job), std::move(done)});
        jobs_.append(held);
        return Handle([held] { held->done = nullptr; });
    }

    [[nodiscard]] qsizetype count() const { return jobs_.size(); }

    void finish(qsizetype number) {
        const auto job = jobs_[number];
        job->job();
        if (const auto done = std::exchange(job->done, nullptr)) {
            done();
        }
    }

private:
    struct Job {
        std::function<void()> job;
        std::function<void()> done;
    };

    QList<std::shared_ptr<Job>> jobs_;
};

class FileLooks : public testing::Test {
protected:
    void look(const QList<QUrl>& files) {
        found_.reset();
        look_.look(files, [this](const FileLook::Found& found) { found_ = found; });
    }

    QTemporaryDir folder_;
    QUrl here_ = fileUrl(folder_.path().toUtf8());
    ManualScheduler scheduler_;
    HeldJobs jobs_;
    FileLook look_{jobs_, scheduler_};
    std::optional<FileLook::Found> found_;
};

const QUrl dead = fileUrl("/dead/a"); // Checked first: folders are sorted by name.
const QUrl alsoDead = fileUrl("/dead/b");
const QUrl gone = fileUrl("/no/such");

TEST_F(FileLooks, AHangingFolderDelaysNoOther) {
    look({dead, here_, alsoDead, gone});
    ASSERT_EQ(jobs_.count(), 3) << "one a folder";
    jobs_.finish(1);
    jobs_.finish(2);
    scheduler_.advance(Seconds(1.9));
    EXPECT_FALSE(found_) << "the third may still answer";
    scheduler_.advance(Seconds(0.1));
    const FileLook::Found expected = {{dead, Presence::unknown},
                                      {alsoDead, Presence::unknown},
                                      {here_, Presence::there},
                                      {gone, Presence::gone}};
    ASSERT_TRUE(found_);
    EXPECT_EQ(*found_, expected);

    look({dead, gone});
    EXPECT_EQ(jobs_.count(), 4) << "the one that hangs is not asked again";
    jobs_.finish(3);
    ASSERT_TRUE(found_) << "and not waited for";
    EXPECT_EQ(found_->value(dead), Presence::unknown);

    jobs_.finish(0); // The server is back.
    look({dead});
    ASSERT_EQ(jobs_.count(), 5);
    jobs_.finish(4);
    ASSERT_TRUE(found_);
    EXPECT_EQ(found_->value(dead), Presence::gone);
}

TEST_F(FileLooks, ManyFoldersUseFewThreads) {
    QList<QUrl> files;
    for (char name = 'a'; name <= 'z'; ++name) {
        files.append(fileUrl(QByteArray("/no/") + name + "/file"));
    }
    look(files);
    EXPECT_EQ(jobs_.count(), 6);
    for (qsizetype number = 0; number < jobs_.count(); ++number) {
        jobs_.finish(number);
    }
    EXPECT_EQ(jobs_.count(), 26);
    ASSERT_TRUE(found_);
    EXPECT_EQ(found_->value(files.last()), Presence::gone);
}

TEST_F(FileLooks, ADeadMountBlocksNoLaterCheck) {
    QList<QUrl> hung;
    for (char name = 'a'; name <= 'z'; ++name) {
        hung.append(fileUrl(QByteArray("/hung/nas/") + name + "/file"));
    }
    look(hung);
    scheduler_.advance(Seconds(2));
    ASSERT_EQ(jobs_.count(), 6) << "all hang now";
    for (int healthy = 6; healthy < 20; ++healthy) {
        const QUrl file = fileUrl("/no" + QByteArray::number(healthy) + "/file");
        look(hung + QList<QUrl>{file});
        ASSERT_EQ(jobs_.count(), healthy + 1) << "only the healthy folder is asked";
        jobs_.finish(healthy);
        ASSERT_TRUE(found_);
        EXPECT_EQ(found_->value(file), Presence::gone);
    }
}

TEST_F(FileLooks, AnEmptyCheckEndsLater) {
    look({});
    EXPECT_FALSE(found_) << "never from within the call";
    scheduler_.advance(Seconds(0));
    EXPECT_TRUE(found_);
}

} // namespace

} // namespace ravelo
