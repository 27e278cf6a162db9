#include "Timing.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace ravelo {

namespace {

/// CPU time of this thread in milliseconds.
class Stopwatch {
public:
    [[nodiscard]] double elapsed() const { return now() - start_; }

private:
    [[nodiscard]] static double now() {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    double start_ = now();
};

void report(const char* what, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::fprintf(stderr, "%-30s median %6.2f ms, p95 %6.2f ms\n", what, times[times.size() / 2],
                 times[times.size() * 95 / 100]);
}

} // namespace

void timeOpenings(int count, PanelWorld& world, PanelView& view) {
    std::vector<double> closings;
    std::vector<double> builds;
    std::vector<double> calls;
    std::vector<double> frames;
    for (int i = 0; i < count; ++i) {
        const Stopwatch closing;
        world.controller.positionCollapsed();
        view.window().resize(200, 12);
        closings.push_back(closing.elapsed());
        settle(Milliseconds(30));
        const Stopwatch building;
        world.scheduler.advance(Seconds(0.05));
        builds.push_back(building.elapsed());
        settle(Milliseconds(60));
        const Stopwatch opening;
        world.controller.positionExpanded();
        view.window().resize(world.controller.frame().size().toSize());
        calls.push_back(opening.elapsed());
        view.window().grabWindow();
        frames.push_back(opening.elapsed());
        settle(Milliseconds(120));
    }
    report("closing", closings);
    report("building the hidden content", builds);
    report("opening", calls);
    report("opening with its first frame", frames);
}

} // namespace ravelo
