#include "running/Stop.h"

#include <atomic>
#include <csignal>
#include <cstdlib>

namespace Command {

namespace {

constexpr int signals[] = {
    SIGINT,
    SIGTERM,
#ifdef SIGHUP
    SIGHUP,
#endif
};

// All that a signal handler may touch: the signal that came, or 0.
std::atomic<int> requested = 0;
static_assert(std::atomic<int>::is_always_lock_free);

void handle(void (*handler)(int)) {
    for (int const signal : signals)
        // What a shell starts in the background ignores interruptions already.
        if (std::signal(signal, handler) == SIG_IGN) std::signal(signal, SIG_IGN);
}

extern "C" void interrupted(int signal) {
    requested = signal;
    for (int const each : signals) std::signal(each, SIG_DFL);
}

} // namespace

Stop::Stop() {
    requested = 0;
    handle(interrupted);
}

Stop::~Stop() {
    handle(SIG_DFL);
}

bool Stop::isRequested() {
    return requested != 0;
}

void Stop::end() {
    std::signal(requested, SIG_DFL);
    std::raise(requested);
    std::_Exit(2);
}

} // namespace Command
