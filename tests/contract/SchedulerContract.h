#pragma once

#include "base/Scheduler.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace ravelo {

/// A scheduler under test and its clock.
class SchedulerUnderTest {
public:
    virtual ~SchedulerUnderTest() = default;

    [[nodiscard]] virtual Scheduler& scheduler() = 0;

    /// Lets time pass until `done`, for max. ten seconds; false on timeout.
    [[nodiscard]] virtual bool waitUntil(const std::function<bool()>& done) = 0;
};

using MakeScheduler = std::unique_ptr<SchedulerUnderTest> (*)();

/// What every scheduler guarantees. Nothing here depends on how late a machine under load is.
class SchedulerContract : public testing::TestWithParam<MakeScheduler> {
protected:
    std::unique_ptr<SchedulerUnderTest> made_ = GetParam()();
    Scheduler& scheduler_ = made_->scheduler();

    /// Notes a word when it is called.
    [[nodiscard]] std::function<void()> note(int number) {
        return [this, number] {
            notes_.push_back(number);
        };
    }

    /// Waits until all that is due within the next 10 ms has run.
    void settle() {
        bool over = false;
        const Handle end = scheduler_.after(Seconds(0.01), [&] { over = true; });
        EXPECT_TRUE(made_->waitUntil([&] { return over; })) << "nothing happened for ten seconds";
    }

    std::vector<int> notes_;
};

TEST_P(SchedulerContract, RunsOnceInOrderOfTimeAndNotBefore) {
    const Seconds start = scheduler_.uptime();
    Seconds ran{0};
    // Far enough apart for a thread that is kept from running between the calls.
    const Handle handles[] = {scheduler_.after(Seconds(0.4), note(3)),
                              scheduler_.after(Seconds(0.1), note(2)),
                              scheduler_.after(Seconds(0), note(1)),
                              scheduler_.after(Seconds(-5), note(0)),
                              scheduler_.after(Seconds(0.4), note(4)),
                              scheduler_.after(Seconds(0.5), [&] { ran = scheduler_.uptime(); })};
    EXPECT_TRUE(notes_.empty()) << "never from within the call";
    EXPECT_TRUE(made_->waitUntil([&] { return ran > Seconds(0); }));
    ASSERT_EQ(notes_.size(), 5U) << "each once";
    EXPECT_EQ(std::vector(notes_.begin() + 2, notes_.end()), std::vector({2, 3, 4}));
    EXPECT_GE((ran - start).count(), 0.5);
}

TEST_P(SchedulerContract, DroppedHandleCancels) {
    Handle dropped = scheduler_.after(Seconds(0.001), note(1));
    const Handle kept = scheduler_.after(Seconds(0.001), note(2));
    Handle repeated = scheduler_.every(Seconds(0.001), note(3));
    dropped.reset();
    repeated.reset();
    settle();
    EXPECT_EQ(notes_, std::vector({2}));
}

TEST_P(SchedulerContract, ActionMayDropHandlesItsOwnToo) {
    Handle once;
    Handle other;
    Handle repeated;
    once = scheduler_.after(Seconds(0.001), [&] {
        notes_.push_back(1);
        other.reset();
        once.reset();
    });
    other = scheduler_.after(Seconds(0.001), note(2));
    repeated = scheduler_.every(Seconds(0.002), [this, &repeated, state = std::make_shared<int>()] {
        notes_.push_back(3);
        repeated.reset();
        ++*state; // Still there, although the handle is not.
    });
    settle();
    EXPECT_EQ(notes_, std::vector({1, 3}));
}

TEST_P(SchedulerContract, ActionMayScheduleMore) {
    Handle next;
    const Handle first = scheduler_.after(Seconds(0.001), [&] {
        notes_.push_back(1);
        next = scheduler_.after(Seconds(0), note(2));
    });
    ASSERT_TRUE(made_->waitUntil([&] { return notes_.size() == 2; }));
    EXPECT_EQ(notes_, std::vector({1, 2}));
}

TEST_P(SchedulerContract, RepeatsUntilItsHandleIsDropped) {
    const Seconds start = scheduler_.uptime();
    Handle handle = scheduler_.every(Seconds(0.003), note(1));
    ASSERT_TRUE(made_->waitUntil([&] { return notes_.size() == 5; }));
    EXPECT_GE((scheduler_.uptime() - start).count(), 0.015);
    handle.reset();
    settle();
    EXPECT_EQ(notes_.size(), 5U);
}

TEST_P(SchedulerContract, WallClockFollowsTheUptime) {
    const Date wall = scheduler_.now();
    const Seconds start = scheduler_.uptime();
    settle();
    const double passed = (scheduler_.uptime() - start).count();
    EXPECT_NEAR(scheduler_.now().sinceReference - wall.sinceReference, passed, 0.5);
    EXPECT_GE(passed, 0.01);
}

TEST_P(SchedulerContract, HandlesMayOutliveIt) {
    const Handle once = scheduler_.after(Seconds(0.001), note(1));
    const Handle repeated = scheduler_.every(Seconds(0.001), note(2));
    made_.reset();
    EXPECT_TRUE(notes_.empty());
}

} // namespace ravelo
