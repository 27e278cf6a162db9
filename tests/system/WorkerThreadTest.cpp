#include "platform/system/WorkerThread.h"

#include "contract/WorkerContract.h"
#include "fakes/ManualWorker.h"

#include <QEventLoop>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace ravelo {

namespace {

INSTANTIATE_TEST_SUITE_P(ManualAtOnce, WorkerContract, testing::Values([] {
                             return std::unique_ptr<Worker>(std::make_unique<ManualWorker>());
                         }));
INSTANTIATE_TEST_SUITE_P(ManualWhenTold, WorkerContract, testing::Values([] {
                             return std::unique_ptr<Worker>(
                                 std::make_unique<ManualWorker>(ManualWorker::Mode::whenTold));
                         }));
INSTANTIATE_TEST_SUITE_P(Thread, WorkerContract, testing::Values([] {
                             return std::unique_ptr<Worker>(std::make_unique<WorkerThread>());
                         }));

TEST(WorkerThread, WorksElsewhereAndEndsInTheEventLoop) {
    WorkerThread worker;
    QEventLoop loop;
    QTimer::singleShot(10000, &loop, [&] { loop.exit(1); });
    const QThread* here = QThread::currentThread();
    const QThread* there = here;
    worker.run([&] { there = QThread::currentThread(); }, [&] { loop.exit(0); });
    EXPECT_EQ(loop.exec(), 0) << "no end within ten seconds";
    EXPECT_TRUE(there != here);
}

TEST(WorkerThread, DrainsWhenDestroyed) {
    int ends = 0;
    {
        WorkerThread worker;
        worker.run([] {}, [&] { worker.run([] {}, [&] { ++ends; }); });
    }
    EXPECT_EQ(ends, 1);
}

TEST(WorkerThread, MayBeUsedByWhatAnEndHeld) {
    WorkerThread worker;
    int ends = 0;
    std::shared_ptr<void> held(nullptr, [&](void*) { worker.run([] {}, [&] { ++ends; }); });
    worker.run([] {}, [held = std::move(held)] {});
    worker.drain();
    EXPECT_EQ(ends, 1);
}

WorkerThread* atExit = nullptr;

void drainAtExit() {
    atExit->run([] { std::fputs("job ", stderr); }, [] { std::fputs("end", stderr); });
    atExit->drain();
}

/// Like the end of the X server: exit() within the event loop; nothing on the stack is destroyed.
void leave() {
    WorkerThread worker;
    atExit = &worker;
    std::atexit(drainAtExit);
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [] { std::exit(3); });
    loop.exec();
}

TEST(WorkerThreadDeathTest, DrainsDuringExit) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(leave(), testing::ExitedWithCode(3), "job end");
}

} // namespace

} // namespace ravelo
