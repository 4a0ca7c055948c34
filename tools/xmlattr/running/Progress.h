// How far a run has come, for a person who waits at a terminal.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace Command {

// "[1234/13458] 12.3 of 45.6 MB, 8.9 MB/s, 4 s left".
std::string progressLine(std::size_t done, std::size_t files, std::uint64_t bytes, std::uint64_t allBytes,
                         std::chrono::duration<double> elapsed);

// A line at the end of the terminal that standard error is: drawn at most ten times a second, and only once a run
// takes longer than one notices.
class Progress {
public:
    // The bytes are those that will be read; 0 where that is not known.
    Progress(std::size_t files, std::uint64_t allBytes, bool isShown)
        : files(files), allBytes(allBytes), isShown(isShown) {}
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;
    ~Progress() { clear(); }

    void draw(std::size_t done, std::uint64_t bytes);
    // Makes room for what is printed next.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    std::size_t files;
    std::uint64_t allBytes;
    bool isShown, isDrawn = false;
    Clock::time_point const start = Clock::now();
    Clock::time_point next = start + std::chrono::milliseconds(500);
};

} // namespace Command
