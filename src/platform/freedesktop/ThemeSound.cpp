#include "platform/freedesktop/ThemeSound.h"

#include <canberra.h>

#include <atomic>
#include <csignal>
#include <system_error>
#include <thread>

namespace ravelo {

namespace {

std::atomic_flag underWay;

/// Of the process and never destroyed: that would unload the driver for ALSA from under the thread
/// that still plays.
ca_context* context() {
    static ca_context* const only = [] {
        ca_context* made = nullptr;
        ca_context_create(&made);
        return made;
    }();
    return only;
}

/// Stands still where the sound server does: libcanberra waits half a minute for one.
void begin() {
    // Also for the threads of libcanberra: a sound server that goes is not to end the program.
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
    ca_context_play(context(), 0, CA_PROP_EVENT_ID, "complete", CA_PROP_APPLICATION_NAME, "Ravelo",
                    nullptr);
    underWay.clear();
}

} // namespace

void ThemeSound::play() {
    if (!underWay.test_and_set()) {
        try {
            std::thread(begin).detach();
        } catch (const std::system_error&) { // The machine is at its limit: no sound.
            underWay.clear();
        }
    }
}

} // namespace ravelo
