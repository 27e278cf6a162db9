#include "platform/system/SystemScheduler.h"

#include "contract/SchedulerContract.h"
#include "fakes/ManualScheduler.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>

namespace ravelo {

namespace {

class OnVirtualTime final : public SchedulerUnderTest {
public:
    [[nodiscard]] Scheduler& scheduler() override { return scheduler_; }

    [[nodiscard]] bool waitUntil(const std::function<bool()>& done) override {
        const Seconds end = scheduler_.uptime() + Seconds(10);
        while (!done() && scheduler_.uptime() < end) {
            scheduler_.advance(Seconds(0.001));
        }
        return done();
    }

private:
    ManualScheduler scheduler_;
};

class OnRealTime final : public SchedulerUnderTest {
public:
    [[nodiscard]] Scheduler& scheduler() override { return scheduler_; }

    [[nodiscard]] bool waitUntil(const std::function<bool()>& done) override {
        bool late = false;
        const Handle timeout = scheduler_.after(Seconds(10), [&] { late = true; });
        while (!done() && !late) {
            QEventLoop().processEvents(QEventLoop::WaitForMoreEvents);
        }
        return done();
    }

private:
    SystemScheduler scheduler_;
};

template <typename T>
std::unique_ptr<SchedulerUnderTest> make() {
    return std::make_unique<T>();
}

INSTANTIATE_TEST_SUITE_P(Manual, SchedulerContract, testing::Values(make<OnVirtualTime>));
INSTANTIATE_TEST_SUITE_P(System, SchedulerContract, testing::Values(make<OnRealTime>));

TEST(Grid, SkipsMissedCalls) {
    struct Case {
        qint64 due, interval, now, next;
    };

    for (const auto& [due, interval, now, next] :
         {Case{100, 20, 100, 120}, Case{100, 20, 119, 120}, Case{100, 20, 120, 140},
          Case{100, 20, 1051, 1060}, Case{100, 20, 90, 120}, Case{7, 1, 1'000'000, 1'000'001}}) {
        EXPECT_EQ(nextOnGrid(due, interval, now), next) << "at " << now;
    }
}

TEST(SystemScheduler, SkipsCallsMissedInALongStall) {
    OnRealTime real;
    Scheduler& scheduler = real.scheduler();
    constexpr Seconds interval{0.004};
    const Seconds start = scheduler.uptime();
    std::vector<Seconds> calls;
    const Handle handle = scheduler.every(interval, [&] {
        calls.push_back(scheduler.uptime());
        while (calls.size() == 1 && scheduler.uptime() < calls[0] + 3.5 * interval) {
        }
    });
    ASSERT_TRUE(real.waitUntil([&] { return calls.size() == 3; }));
    // The stall ended no sooner than 4.5 intervals after the start; one call was late by then.
    EXPECT_GE(calls[2] - start, 5 * interval) << "the missed calls were made up for";
}

TEST(SystemScheduler, RunsInsideAnEventLoopOfAnAction) {
    OnRealTime real;
    bool inner = false;
    bool outer = false;
    Handle later;
    const Handle handle = real.scheduler().after(Seconds(0.001), [&] {
        later = real.scheduler().after(Seconds(0.001), [&] { inner = true; });
        outer = real.waitUntil([&] { return inner; });
    });
    ASSERT_TRUE(real.waitUntil([&] { return outer; }));
    EXPECT_TRUE(inner);
}

/// What the kernel says of the only timer that this process has (proc(5), fdinfo).
QByteArray kernelTimer() {
    QByteArray found;
    const QDir folder(QStringLiteral("/proc/self/fdinfo"));
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        const QByteArray text = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
        if (text.contains("clockid:")) {
            EXPECT_TRUE(found.isEmpty()) << "more than one timer";
            found = text;
        }
    }
    return found;
}

TEST(SystemScheduler, RestsWithNothingToDoAndCountsTheTimeAsleep) {
    OnRealTime real;
    EXPECT_TRUE(kernelTimer().contains("it_value: (0, 0)")) << "nothing asked for yet";
    Handle far = real.scheduler().after(Seconds(3600), [] {});
    Handle near = real.scheduler().every(Seconds(60), [] {});
    EXPECT_TRUE(kernelTimer().contains("clockid: 7")) << "CLOCK_BOOTTIME";
    EXPECT_TRUE(kernelTimer().contains("it_value: (59, ")) << kernelTimer().constData();
    near.reset();
    EXPECT_TRUE(kernelTimer().contains("it_value: (3599, ")) << kernelTimer().constData();
    far.reset();
    EXPECT_TRUE(kernelTimer().contains("it_value: (0, 0)")) << "nothing left";
}

} // namespace

} // namespace ravelo
