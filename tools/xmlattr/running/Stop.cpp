#include "running/Stop.h"

#include <atomic>
#include <csignal>
#include <cstdlib>

namespace Command {

namespace {

// All that a signal handler may touch.
std::atomic<bool> requested = false;
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void interrupted(int) {
    requested = true;
    std::signal(SIGINT, SIG_DFL);
}

} // namespace

Stop::Stop() {
    requested = false;
    // What a shell starts in the background ignores interruptions already.
    if (std::signal(SIGINT, interrupted) == SIG_IGN) std::signal(SIGINT, SIG_IGN);
}

Stop::~Stop() {
    if (std::signal(SIGINT, SIG_DFL) == SIG_IGN) std::signal(SIGINT, SIG_IGN);
}

bool Stop::isRequested() {
    return requested;
}

void Stop::end() {
    std::signal(SIGINT, SIG_DFL);
    std::raise(SIGINT);
    std::_Exit(2);
}

} // namespace Command
