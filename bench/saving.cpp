// bench_saving COUNT: saves a large store, 65 clips of 64 KB, COUNT times. Prints a line each:
// milliseconds of the main thread from a copy until the save is queued, and until the file exists,
// without the debounce of 0.4 s.

#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeServices.h"
#include "fakes/ManualScheduler.h"
#include "fakes/MemoryPasteboard.h"
#include "fakes/MemoryPreferences.h"
#include "platform/system/WorkerThread.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace ravelo;

constexpr int pinned = 5;
constexpr int unpinned = 60;
constexpr int length = 64 << 10;
constexpr Seconds waiting{1}; ///< Longer than the debounce.

QString text(int number) {
    const QString line = QStringLiteral("Line %1 of a long text, \"with\" quotes.\n").arg(number);
    return line.repeated(length / line.size() + 1).left(length);
}

void fill(Store& store) {
    for (int i = 0; i < pinned + unpinned; ++i) {
        store.addClip(text(i));
        if (i < pinned) {
            store.togglePin(store.clips().front().id);
        }
    }
}

double milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    ManualScheduler scheduler;
    WorkerThread worker;
    MemoryPreferences preferences;
    MemoryPasteboard pasteboard(scheduler);
    FakeAlertSound sound;
    FakeDetachedJobs jobs(scheduler);
    Store store(folder.path(),
                {scheduler, worker, preferences, pasteboard, sound, jobs, jobs, jobs, nullptr});
    fill(store);
    scheduler.advance(waiting);
    worker.drain();
    for (int i = 0; i < (argc > 1 ? std::atoi(argv[1]) : 1); ++i) {
        const QString more = text(1000 + i);
        QElapsedTimer timer;
        timer.start();
        store.addClip(more);
        scheduler.advance(waiting);
        const double own = milliseconds(timer);
        worker.drain();
        std::printf("%g %g\n", own, milliseconds(timer));
    }
    if (store.clips().size() != pinned + unpinned ||
        QFileInfo(store.fileURL()).size() < qint64{pinned + unpinned} * length) {
        qFatal("the store is not as large as it was to be");
    }
    return 0;
}
