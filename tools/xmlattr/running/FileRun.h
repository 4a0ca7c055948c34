// Checks files on several threads, and tells what was found on the thread of the caller, in the order of the files:
// what is told does not depend on the number of threads.
#pragma once

#include "checking/Checker.h"
#include "selecting/FileSettings.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Command {

struct FileJob {
    std::string path;                          // "-" is standard input
    std::vector<FileSettings const*> settings; // each filter counts; of the other settings the last that is there
};

// What is known of a file when everything that was found in it has been told.
struct FileEnd {
    Counts counts;
    std::optional<XmlFailure> failure;
    bool isStrict = false; // was checked so
};

class RunListener {
public:
    virtual ~RunListener() = default;
    virtual void finding(std::size_t file, Finding const& finding) = 0;
    virtual void ended(std::size_t file, FileEnd const& end) = 0;
    // How many findings are still wanted; the others are only counted, which takes less time.
    virtual std::uint64_t wanted() const = 0;
    // Called several times a second, with the bytes read so far.
    virtual void passed(std::uint64_t bytes) = 0;
};

// Gives how many files were told to their end: all of them, unless Stop was requested. The file at hand is told as far
// as it was read then, and is not among them.
std::size_t runFiles(std::span<FileJob const> jobs, std::uint64_t threads, RunListener& listener);

} // namespace Command
