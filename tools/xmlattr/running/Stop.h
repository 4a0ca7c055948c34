// The wish of a user to end a run early: Ctrl-C, a terminal that is closed, a machine that is shut down.
#pragma once

namespace Command {

// While one exists, the first SIGINT, SIGTERM or SIGHUP is remembered and the run ends by itself; a second one ends the
// program at once. There is at most one at a time.
class Stop {
public:
    Stop();
    Stop(Stop const&) = delete;
    Stop& operator=(Stop const&) = delete;
    ~Stop();

    // From any thread.
    static bool isRequested();
    // Ends the program as the signal does when nobody handles it, so that a loop of a shell ends too.
    [[noreturn]] static void end();
};

} // namespace Command
