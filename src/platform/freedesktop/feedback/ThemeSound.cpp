#include "platform/freedesktop/feedback/ThemeSound.h"

#include <canberra.h>

#include <atomic>
#include <csignal>
#include <system_error>
#include <thread>

namespace ravelo {

namespace {

std::atomic_flag underWay;

/// Never destroyed: that would unload the ALSA driver while a thread still plays.
ca_context* context() {
    static ca_context* const only = [] {
        ca_context* made = nullptr;
        ca_context_create(&made);
        return made;
    }();
    return only;
}

/// May hang with the sound server: libcanberra waits half a minute.
void begin() {
    // Also for the threads of libcanberra: a sound server that ends must not end this program.
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
        } catch (const std::system_error&) { // The thread limit is reached; no sound.
            underWay.clear();
        }
    }
}

} // namespace ravelo
