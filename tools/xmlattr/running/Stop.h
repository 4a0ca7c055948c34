// The wish of a user to end a run early: Ctrl-C.
#pragma once

namespace Command {

// While one exists, the first interruption is remembered and the run ends by itself; a second one ends the program at
// once. There is at most one at a time.
class Stop {
public:
    Stop();
    Stop(Stop const&) = delete;
    Stop& operator=(Stop const&) = delete;
    ~Stop();

    // From any thread.
    static bool isRequested();
    // Ends the program as an interruption that nobody handles does, so that a loop of a shell ends too.
    [[noreturn]] static void end();
};

} // namespace Command
