#include "running/FileRun.h"

#include "running/OrderedQueue.h"
#include "running/Stop.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <memory>
#include <system_error>
#include <thread>
#include <variant>

namespace Command {

namespace {

// Of findings that wait for the files before theirs.
constexpr std::size_t mostWaiting = 16 << 20;
constexpr std::chrono::milliseconds patience(50);

constexpr std::string_view stopped = "stopped"; // the failure of a file at whose end nobody waited any more

// What to do about a file that was not read to its end.
std::string_view remedyFor(std::string_view failure) {
    if (failure == "malformed") return "; mend it there, nothing after it was checked";
    if (failure == "limit") return "; nothing after it was checked";
    if (failure == "encoding") return "; convert the file to UTF-8";
    return {};
}

// What the threads of a run share.
struct Shared {
    std::atomic<std::size_t> next = 0; // file that nobody has begun
    std::atomic<std::uint64_t> bytes = 0, wanted = 0;
    std::atomic<bool> isStopping = false;
};

// Counts the bytes, and fails when the run is to end.
class WatchedSource final : public ByteSource {
public:
    WatchedSource(std::FILE* file, Shared& shared) : file(file), shared(shared) {}

    std::size_t read(std::span<char> buffer) override {
        if (shared.isStopping) {
            failed = SourceFailure{stopped, ""};
            return 0;
        }
        std::size_t const count = file.read(buffer);
        failed = file.failure();
        shared.bytes += count;
        return count;
    }

private:
    FileSource file;
    Shared& shared;
};

struct End {
    FileEnd file;
    bool isStopped = false;
    std::exception_ptr thrown;
};

using Told = std::variant<Finding, End>;

std::size_t sizeOf(Finding const& finding) {
    std::size_t size = sizeof(Told);
    for (std::string const* const text :
         {&finding.element, &finding.attribute, &finding.text, &finding.part, &finding.problem, &finding.held,
          &finding.expected, &finding.newer, &finding.replacement, &finding.source.before, &finding.source.part,
          &finding.source.after})
        size += text->capacity();
    return size;
}

class Run {
public:
    Run(std::span<FileJob const> jobs, std::uint64_t threads, RunListener& listener)
        : jobs(jobs), listener(listener), queue(mostWaiting) {
        shared.wanted = listener.wanted();
        for (std::size_t i = 0; i < std::min<std::uint64_t>(threads, jobs.size()); ++i) {
            try {
                workers.emplace_back([this] { work(); });
            } catch (std::system_error const&) {
                if (workers.empty()) throw;
                break; // the machine has no more threads
            }
        }
    }
    Run(Run const&) = delete;
    Run& operator=(Run const&) = delete;
    ~Run() { stop(); } // before the threads are joined

    std::size_t tell() {
        std::size_t file = 0;
        while (file < jobs.size()) {
            for (Told const& told : queue.take(patience)) {
                if (auto const* const finding = std::get_if<Finding>(&told)) {
                    listener.finding(file, *finding);
                    continue;
                }
                End const& end = std::get<End>(told);
                if (end.thrown) std::rethrow_exception(end.thrown);
                listener.ended(file, end.file);
                if (end.isStopped) return file;
                ++file;
            }
            shared.wanted = listener.wanted();
            listener.passed(shared.bytes);
            if (Stop::isRequested()) stop();
        }
        return file;
    }

private:
    void stop() {
        shared.isStopping = true;
        queue.lift();
    }

    void work() {
        for (std::size_t number = shared.next++; number < jobs.size(); number = shared.next++) {
            End end;
            try {
                check(number, end);
            } catch (...) {
                end.thrown = std::current_exception();
            }
            queue.put(number, std::move(end), sizeof(Told), true);
        }
    }

    void check(std::size_t number, End& end) {
        end.isStopped = shared.isStopping;
        if (end.isStopped) return; // and was not begun
        FileJob const& job = jobs[number];
        Checker::Options options;
        options.maxFindings = shared.wanted;
        for (FileSettings const* const settings : job.settings) {
            if (settings->isStrict) options.isStrict = *settings->isStrict;
            options.showsPassedOver |= settings->shown.passedOver;
            options.showsNotCovered |= settings->shown.notCovered;
            options.showsUnknown |= settings->shown.unknown;
            if (!settings->filter.isEmpty()) options.maxFindings = UINT64_MAX; // each has to be looked at
        }
        end.file.isStrict = options.isStrict;
        Counts& counts = end.file.counts;
        Counts ignored;
        auto const report = [&](Finding const& finding) {
            bool const passes = std::ranges::all_of(
                job.settings, [&](FileSettings const* settings) { return settings->filter.passes(finding); });
            if (passes) return queue.put(number, finding, sizeOf(finding), false);
            ++ignored.of(kindOf(finding.fault).severity);
        };
        Checker checker(counts, report, options);
        errno = 0;
        OpenFile const opened(job.path == "-" ? stdin : std::fopen(job.path.c_str(), "rb"));
        std::optional<XmlFailure>& failure = end.file.failure;
        if (opened) {
            WatchedSource source(opened.get(), shared);
            failure = readXml(source, checker);
        } else {
            failure = XmlFailure{"unreadable",
                                 "cannot be read: " + std::generic_category().message(errno) +
                                     "; check the path and its permissions",
                                 std::nullopt};
        }
        if (failure) failure->message += remedyFor(failure->id);
        counts.files = 1;
        counts.failedFiles = failure ? 1 : 0;
        if (!failure) checker.finish();
        end.isStopped = failure && failure->id == stopped;
        if (end.isStopped) failure.reset();
        counts.ignored = counts.leaveOut(ignored);
    }

    std::span<FileJob const> jobs;
    RunListener& listener;
    Shared shared;
    OrderedQueue<Told> queue;
    std::vector<std::jthread> workers; // last, so that they end before what they use does
};

} // namespace

std::size_t runFiles(std::span<FileJob const> jobs, std::uint64_t threads, RunListener& listener) {
    return Run(jobs, threads, listener).tell();
}

} // namespace Command
