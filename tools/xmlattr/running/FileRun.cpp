#include "running/FileRun.h"

#include "running/OrderedQueue.h"
#include "running/Relay.h"
#include "running/Stop.h"

#include <algorithm>
#include <atomic>
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
// Of a file that was read before a second thread is worth its start.
constexpr std::uint64_t relayedFrom = 1 << 20;

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
    std::atomic<std::int64_t> spareThreads = 0; // that may be started yet
    std::atomic<std::size_t> next = 0;          // file that nobody has begun
    std::atomic<std::uint64_t> bytes = 0, wanted = 0;
    std::atomic<bool> isStopping = false;
};

// A thread beside that which reads a file, where the run has one to spare.
class SecondThread {
public:
    SecondThread(Shared& shared, Relay& relay) : shared(shared), relay(relay) {}
    SecondThread(SecondThread const&) = delete;
    SecondThread& operator=(SecondThread const&) = delete;
    ~SecondThread() {
        if (relay.isStarted()) ++shared.spareThreads;
    }

    void tryStart() {
        if (relay.isStarted() || shared.spareThreads <= 0) return;
        bool const isMine = shared.spareThreads-- > 0;
        try {
            if (isMine) return relay.start();
        } catch (std::system_error const&) { // the machine has no more threads
        }
        ++shared.spareThreads;
    }

private:
    Shared& shared;
    Relay& relay;
};

// Counts the bytes, and fails when the run is to end.
class WatchedSource final : public ByteSource {
public:
    WatchedSource(std::string const& path, Shared& shared, Relay& relay)
        : file(path), shared(shared), second(shared, relay) {
        failed = file.failure();
    }

    std::size_t read(std::span<char> buffer) override {
        if (shared.isStopping) {
            failed = SourceFailure{stopped, ""};
            return 0;
        }
        if (bytes >= relayedFrom) second.tryStart();
        std::size_t const count = file.read(buffer);
        failed = file.failure();
        bytes += count;
        shared.bytes += count;
        return count;
    }

private:
    FileSource file;
    std::uint64_t bytes = 0;
    Shared& shared;
    SecondThread second;
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

// What a thread uses for one file after the other.
struct Tools {
    XmlReader reader;
    std::shared_ptr<VerdictCache> verdicts = std::make_shared<VerdictCache>();
};

class Run {
public:
    Run(std::span<FileJob const> jobs, std::uint64_t threads, RunListener& listener)
        : jobs(jobs), listener(listener), queue(jobs.size(), mostWaiting) {
        shared.wanted = listener.wanted();
        std::uint64_t const mostWorkers = std::min<std::uint64_t>(threads, jobs.size());
        shared.spareThreads = static_cast<std::int64_t>(std::min<std::uint64_t>(threads, INT32_MAX) - mostWorkers);
        for (std::size_t i = 0; i < mostWorkers; ++i) {
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
        Tools tools;
        for (std::size_t number = shared.next++; number < jobs.size(); number = shared.next++) {
            End end;
            try {
                check(number, tools, end);
            } catch (...) {
                end.thrown = std::current_exception();
            }
            queue.put(number, std::move(end), sizeof(Told), true);
        }
        ++shared.spareThreads;
    }

    void check(std::size_t number, Tools& tools, End& end) {
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
        Checker checker(counts, report, options, tools.verdicts);
        Relay relay(checker);
        WatchedSource source(job.path, shared, relay);
        std::optional<XmlFailure>& failure = end.file.failure;
        failure = tools.reader.read(source, relay);
        relay.settle();
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
