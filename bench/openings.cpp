// openings WINDOW PROCESS COUNT HOW: opens a panel and closes it by a click elsewhere. HOW is
// "pointer", or "call" for the session bus. Prints for each opening the milliseconds until the
// window had its size, until it showed the picture of its content, and until the content itself,
// which has a caret and shows what is under the pointer; at any visible opacity.
//
// Frames are captured as they come, which costs about 0.5 ms of the X server's time, and compared
// later: the first one with enough details of the last one counts, at the time of its capture.

#include "bench/Frames.h"
#include "bench/Idle.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QVariantMap>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string_view>
#include <thread>

namespace {

using namespace ravelo::bench;
using namespace Qt::StringLiterals;

constexpr Place away = {200, 800};
constexpr double maxPause = 100; ///< Milliseconds; many ticks of the program.
constexpr double picture = 0.9;  ///< Of the details; the others move with pointer and keyboard.

struct Opening {
    Clock::time_point begun;
    Clock::time_point resized;
    std::vector<Frame> frames;
};

/// The next frame; empty once the program is at rest and draws nothing more.
std::optional<Frame> nextFrame(WindowWatch& window, int process) {
    Idleness idleness(process);
    do {
        if (auto frame = window.nextFrame(Idleness::window)) {
            return frame;
        }
    } while (!idleness.isIdle()); // On a busy machine it may just be late.
    return std::nullopt;
}

using Trigger = void (*)(XServer&);

void arrive(XServer& server) {
    const Place zone = {static_cast<int16_t>(server.screen().width_in_pixels / 2), 2};
    server.move(zone);
    xcb_flush(server.get());
}

void call(XServer& /*server*/) {
    auto activate = QDBusMessage::createMethodCall(u"org.ravelo.Ravelo"_s, u"/org/ravelo/Ravelo"_s,
                                                   u"org.freedesktop.Application"_s, u"Activate"_s);
    activate << QVariantMap();
    QDBusConnection::sessionBus().asyncCall(activate);
}

Opening open(XServer& server, WindowWatch& window, int process, Trigger trigger) {
    Opening opening;
    opening.begun = Clock::now();
    trigger(server);
    opening.resized = window.awaitSize(panelSize);
    while (auto frame = nextFrame(window, process)) {
        opening.frames.push_back(std::move(*frame));
    }
    return opening;
}

void close(XServer& server, WindowWatch& window) {
    server.move(away);
    server.click();
    window.awaitSize(handleSize);
}

/// When `part` of what the last frame shows was shown first.
Clock::time_point whenShown(const std::vector<Frame>& frames, double part) {
    const auto first = std::find_if(frames.begin(), frames.end(), [&](const Frame& frame) {
        return shown(frame, frames.back()) >= part;
    });
    if (first == frames.end()) {
        giveUp("the panel shows nothing to recognise");
    }
    return first->seen;
}

void report(const Opening& opening) {
    const auto since = [&](Clock::time_point then) {
        return std::chrono::duration<double, std::milli>(then - opening.begun).count();
    };
    std::cout << since(opening.resized) << ' ' << since(whenShown(opening.frames, picture)) << ' '
              << since(whenShown(opening.frames, 1)) << std::endl;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        giveUp("openings WINDOW PROCESS COUNT pointer|call");
    }
    const Trigger trigger = std::string_view(argv[4]) == "call" ? call : arrive;
    const int process = std::atoi(argv[2]);
    XServer server;
    WindowWatch window(server, static_cast<xcb_window_t>(std::strtoul(argv[1], nullptr, 10)));
    std::mt19937 random(1); // NOLINT(*-msc51-cpp): the same pauses each time.
    std::uniform_real_distribution<double> pause(0, maxPause);
    server.move(away);
    for (int left = std::atoi(argv[3]); left > 0; --left) {
        xcb_flush(server.get());
        awaitIdle(process);
        std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(pause(random)));
        report(open(server, window, process, trigger));
        close(server, window);
    }
}
