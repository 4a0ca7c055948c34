#include "running/Progress.h"

#include "output/Output.h"

#include <cstdio>

namespace Command {

std::string progressLine(std::size_t done, std::size_t files, std::uint64_t bytes, std::uint64_t allBytes,
                         std::chrono::duration<double> elapsed) {
    auto const inMegabytes = [](double number) {
        char digits[32];
        std::snprintf(digits, sizeof digits, "%.1f", number / 1e6);
        return std::string(digits);
    };
    double const rate = elapsed.count() > 0 ? static_cast<double>(bytes) / elapsed.count() : 0;
    std::string line =
        "[" + std::to_string(done) + "/" + std::to_string(files) + "] " + inMegabytes(static_cast<double>(bytes));
    if (allBytes > 0) line += " of " + inMegabytes(static_cast<double>(allBytes));
    line += " MB, " + inMegabytes(rate) + " MB/s";
    if (allBytes <= bytes || rate <= 0) return line;
    auto const seconds = static_cast<std::uint64_t>(static_cast<double>(allBytes - bytes) / rate) + 1;
    std::string const minutes = seconds < 60 ? "" : std::to_string(seconds / 60) + " min ";
    return line + ", " + minutes + std::to_string(seconds % 60) + " s left";
}

void Progress::draw(std::size_t done, std::uint64_t bytes) {
    if (!isShown || Clock::now() < next) return;
    flushOutput();
    std::fprintf(stderr, "\r\x1b[K%s", progressLine(done, files, bytes, allBytes, Clock::now() - start).c_str());
    std::fflush(stderr);
    isDrawn = true;
    next = Clock::now() + std::chrono::milliseconds(100);
}

void Progress::clear() {
    if (!isDrawn) return;
    std::fputs("\r\x1b[K", stderr);
    isDrawn = false;
}

} // namespace Command
