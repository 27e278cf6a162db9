#include "ui/images/SlowWork.h"

#include <gtest/gtest.h>

#include <latch>
#include <mutex>
#include <set>
#include <thread>

namespace ravelo {
namespace {

TEST(SlowWorkTest, RunsJobsOneAfterTheOther) {
    constexpr int count = 8;
    std::latch allGiven(1);
    std::latch allDone(count);
    std::mutex mutex;
    std::set<std::thread::id> threads;
    SlowWork work;
    for (int i = 0; i < count; ++i) {
        work.run([&] {
            allGiven.wait();
            {
                const std::scoped_lock lock(mutex);
                threads.insert(std::this_thread::get_id());
            }
            allDone.count_down();
        });
    }
    allGiven.count_down();
    allDone.wait();
    EXPECT_EQ(threads.size(), 1U);
}

} // namespace
} // namespace ravelo
