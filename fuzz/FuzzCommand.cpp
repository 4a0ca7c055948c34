// Any bytes as documents for the command, one after each byte 1F: its XML reader, its places and its checks, and what
// several threads make of them.
#include "FuzzText.h"
#include "checking/Checker.h"
#include "running/FileRun.h"
#include "running/Relay.h"
#include "text/Text.h"

#include <algorithm>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace Command;

// What is told of documents, a line for each finding and each end, so that two checks can be compared.
struct Told {
    std::vector<std::string> findings, ends;
    bool operator==(Told const&) const = default;
};

std::string lineOf(Finding const& finding) {
    std::string line = std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column);
    return line.append(" ").append(kindOf(finding.fault).id).append(" ").append(finding.message());
}

std::string lineOf(Counts const& counts) {
    std::string line;
    for (std::uint64_t const count :
         {counts.attributes, counts.declarations, counts.read, counts.passedOver, counts.freeText, counts.misread,
          counts.lenient, counts.refused, counts.foreign, counts.templates, counts.tooLong, counts.unread,
          counts.unknown, counts.errors, counts.warnings, counts.notes})
        line.append(std::to_string(count)).append(" ");
    return line;
}

void requireSound(Finding const& finding, std::size_t size) {
    require(finding.place.line >= 1 && finding.place.line <= size, "a finding is in no line of the document");
    require(finding.place.column >= 1 && finding.place.column <= size + 1, "a finding is in no column");
    require(finding.message().find('\n') == std::string::npos, "a message has two lines");
}

void requireSound(Counts const& counts, std::uint64_t findings) {
    require(findings == counts.findings(), "findings are lost");
    std::uint64_t const classes = counts.read + counts.passedOver + counts.freeText + counts.misread + counts.lenient +
                                  counts.refused + counts.notCovered();
    require(counts.attributes + counts.declarations == classes, "an attribute is in no class, or in two");
}

enum class Threads : bool { One, Two };

Told check(std::string_view document, Checker::Options const& options, Threads threads) {
    Told told;
    Counts counts;
    Checker checker(
        counts,
        [&](Finding const& finding) {
            requireSound(finding, document.size());
            told.findings.push_back(lineOf(finding));
        },
        options);
    Relay relay(checker);
    if (threads == Threads::Two) relay.start();
    MemorySource source(document);
    auto const failure = readXml(source, relay);
    relay.settle();
    if (!failure) checker.finish();
    requireSound(counts, told.findings.size());
    require(!failure || (!failure->id.empty() && !failure->message.empty()), "a failure says nothing");
    told.ends.push_back(lineOf(counts) + (failure ? failure->message : ""));
    return told;
}

// A document in memory that has the path of a file.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view bytes) : file(memfd_create("document", 0)) {
        require(write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()), "no memory for a file");
    }
    MemoryFile(MemoryFile const&) = delete;
    MemoryFile& operator=(MemoryFile const&) = delete;
    ~MemoryFile() { close(file); }
    std::string path() const { return "/proc/self/fd/" + std::to_string(file); }

private:
    int file;
};

struct Listener final : RunListener {
    void finding(std::size_t file, Finding const& finding) override {
        told.findings.push_back(std::to_string(file) + " " + lineOf(finding));
    }
    void ended(std::size_t file, FileEnd const& end) override {
        told.ends.push_back(std::to_string(file) + " " + lineOf(end.counts) +
                            (end.failure ? end.failure->message : ""));
    }
    std::uint64_t wanted() const override { return UINT64_MAX; }
    void passed(std::uint64_t) override {}

    Told told;
};

Told checkFiles(std::span<FileJob const> jobs, std::uint64_t threads) {
    Listener listener;
    require(runFiles(jobs, threads, listener) == jobs.size(), "a file is not told of");
    return listener.told;
}

// Threads cost more than the rest of a check, so that not all documents are given to them.
bool isForThreads(std::string_view bytes) {
    return hashOf(bytes) % 16 == 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size == 0) return 0;
    Checker::Options everything;
    everything.isStrict = everything.showsPassedOver = everything.showsNotCovered = everything.showsUnknown = true;
    std::string_view rest(reinterpret_cast<char const*>(data), size);
    bool const hasThreads = isForThreads(rest);
    std::vector<std::unique_ptr<MemoryFile>> files;
    while (!rest.empty()) {
        std::string_view const document = rest.substr(0, rest.find('\x1F'));
        rest.remove_prefix(std::min(document.size() + 1, rest.size()));
        Told const plain = check(document, {}, Threads::One), all = check(document, everything, Threads::One);
        auto const isInAll = [&](auto const& line) {
            return std::ranges::find(all.findings, line) != all.findings.end();
        };
        require(std::ranges::all_of(plain.findings, isInAll), "a strict check leaves findings out");
        if (!hasThreads) continue;
        require(check(document, everything, Threads::Two) == all, "two threads tell something else of a document");
        files.push_back(std::make_unique<MemoryFile>(document));
    }
    if (files.empty()) return 0;
    std::vector<FileJob> jobs;
    for (auto const& file : files) jobs.push_back({file->path(), {}});
    require(checkFiles(jobs, 1) == checkFiles(jobs, 3), "several threads tell something else of several documents");
    return 0;
}
