#include "bytes/GzipPacker.h"
#include "bytes/GzipSource.h"
#include "bytes/TranscodedSource.h"
#include "cli/Commands.h"
#include "cli/Files.h"
#include "fixing/Fixer.h"
#include "fixing/ReplacedFile.h"
#include "fixing/UnifiedDiff.h"
#include "output/Report.h"
#include "selecting/Configuration.h"
#include "text/Path.h"
#include "text/Text.h"

#include "xmlattr/core/Log.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <memory>
#include <set>
#include <system_error>

namespace Command {

namespace {

namespace fs = std::filesystem;

class PrintedDocument final : public RewrittenDocument {
public:
    void keep(std::string_view bytes) override { print(bytes); }
    void replace(std::string_view, std::string_view after) override { print(after); }
    void finish() override {}
};

// Compresses what goes to another document.
class PackedDocument final : public RewrittenDocument {
public:
    explicit PackedDocument(std::unique_ptr<RewrittenDocument> document)
        : document(std::move(document)), packer([this](std::string_view bytes) { this->document->keep(bytes); }) {}
    void keep(std::string_view bytes) override { packer.add(bytes); }
    void replace(std::string_view, std::string_view after) override { packer.add(after); }
    void finish() override {
        packer.add({}, true);
        document->finish();
    }

private:
    std::unique_ptr<RewrittenDocument> document;
    GzipPacker packer;
};

[[noreturn]] void failToRead(std::string const& why) {
    throw RewriteFailure("unreadable", "cannot be read: " + why);
}

// As patch takes it: a name that is absolute or leads upwards begins in the folder of the call, if the file lies below.
std::string nameInDiff(std::string const& name) {
    std::error_code unresolved;
    fs::path const named = pathOf(name),
                   path = fs::is_symlink(named, unresolved) ? fs::canonical(named, unresolved) : named;
    if (!path.is_absolute() && std::ranges::find(path, "..") == path.end()) return path.generic_string();
    std::error_code error;
    fs::path const folder = fs::canonical(fs::absolute(path).parent_path(), error);
    fs::path const below = (folder / path.filename()).lexically_relative(fs::current_path(error));
    bool const isBelow = !below.empty() && *below.begin() != "..";
    return (isBelow ? below : path).generic_string();
}

// Standard input as a file that can be read twice.
OpenFile openInput() {
    if (std::fseek(stdin, 0, SEEK_SET) == 0) return OpenFile(stdin);
    OpenFile copy(std::tmpfile());
    if (!copy) failToRead(std::strerror(errno));
    std::array<char, blockSize> buffer;
    while (std::size_t const count = std::fread(buffer.data(), 1, buffer.size(), stdin))
        if (std::fwrite(buffer.data(), 1, count, copy.get()) != count) failToRead(std::strerror(errno));
    if (std::ferror(stdin) || std::fflush(copy.get()) != 0) failToRead(std::strerror(errno));
    return copy;
}

OpenFile openFile(std::string const& path) {
    std::error_code error;
    fs::file_status const status = fs::status(pathOf(path), error);
    if (fs::exists(status) && !fs::is_regular_file(status)) failToRead("it is no regular file");
    OpenFile opened(std::fopen(path.c_str(), "rb"));
    if (!opened) failToRead(std::strerror(errno));
    return opened;
}

// A document and, unless it is standard input, the file that its new text goes to.
struct Job {
    std::string document;
    fs::path target;
    std::vector<FileSettings const*> settings{};

    bool isInput() const { return document == "-"; }
};

// The file that is written, where links lead to it.
fs::path placeOf(fs::path const& target) {
    std::error_code unresolved;
    fs::path place = fs::weakly_canonical(target, unresolved);
    return unresolved ? target.lexically_normal() : place;
}

// In a folder for output a file has the path below the directory that was named.
std::vector<Job> jobsOf(FixOptions const& options, std::vector<std::string>& problems) {
    std::vector<Job> jobs;
    std::set<fs::path> targets;
    for (std::string const& path : options.paths) {
        FileList const list = gatherFiles({path});
        for (auto const& [folder, failure] : list.problems) problems.push_back(folder + ": " + failure.message);
        for (std::string const& file : list.files) {
            Job job{file, pathOf(file)};
            if (!options.output.empty()) {
                fs::path const below =
                    file == path ? job.target.filename() : job.target.lexically_relative(pathOf(path));
                job.target = pathOf(options.output) / below;
            }
            if (targets.insert(placeOf(job.target)).second)
                jobs.push_back(std::move(job));
            else if (!options.output.empty())
                problems.push_back(file + ": another file has the name " + job.target.string() + " already");
        }
    }
    return jobs;
}

// Adds what the configurations say of the documents; gives what is wrong with one of them.
std::optional<std::string> readConfigurations(Configurations& configurations, std::vector<Job>& jobs) {
    for (Job& job : jobs) {
        Configuration const* configuration = nullptr;
        if (job.isInput()) continue;
        if (auto problem = configurations.find(job.document, configuration)) return problem;
        if (configuration) configuration->addSettings(job.document, job.settings);
    }
    return std::nullopt;
}

class Fixing {
public:
    // Where standard output has documents or diffs, what is left is told on standard error.
    Fixing(FixOptions const& options, bool hasInput)
        : options(options), isColored(usesColor(options.color)), isOutputTaken(options.isDryRun || hasInput) {}

    void fix(Job const& job) {
        std::string const name = job.isInput() ? "<stdin>" : job.document;
        ++files;
        try {
            std::optional<XmlFailure> const failure = rewrite(job, name);
            if (failure) fail(name, *failure);
        } catch (RewriteFailure const& failure) {
            fail(name, {failure.id, failure.what(), std::nullopt});
        }
    }

    void syncFolders() {
        for (fs::path const& folder : folders) {
            try {
                system.syncFolder(folder);
            } catch (std::system_error const& error) {
                fail(folder.string(), {"unwritable", "cannot be written: " + error.code().message(), std::nullopt});
            }
        }
    }

    bool hasFailed() const { return failedFiles > 0; }
    bool hasLeft() const { return !left.empty(); }

    std::string summary() const {
        std::string line = quantity(files, "file");
        if (failedFiles > 0) line += " (" + std::to_string(failedFiles) + " failed)";
        line += options.isDryRun ? ", to be rewritten " : ", rewritten ";
        line += std::to_string(rewrittenFiles) + "; values fixed " + byId(fixed) + ", findings left " + byId(left);
        if (suggested > 0) line += "; --suggestions would fix " + std::to_string(suggested);
        return line + "\n";
    }

private:
    // Nothing is left of what was done before a failure.
    std::optional<XmlFailure> rewrite(Job const& job, std::string const& name) {
        OpenFile opened = job.isInput() ? openInput() : openFile(job.document);
        SharedFileSource checked(opened.get()), copied(opened.get());
        constexpr std::size_t longestDeclaration = 1 << 10;
        std::array<char, longestDeclaration> room, unpackedRoom;
        PeekedSource start(checked, room);
        bool const isPacked = isGzip(start.peek(longestDeclaration));
        std::optional<GzipSource> unpacked, unpackedCopy;
        if (isPacked) {
            unpacked.emplace(start);
            unpackedCopy.emplace(copied);
        }
        PeekedSource source(isPacked ? static_cast<ByteSource&>(*unpacked) : start, unpackedRoom);
        bool const hasPlaces = foreignEncoding(source.peek(longestDeclaration)).empty();
        std::unique_ptr<RewrittenDocument> rewritten = destinationOf(job, name);
        if (isPacked && !options.isDryRun) rewritten = std::make_unique<PackedDocument>(std::move(rewritten));
        Rewriter rewriter(isPacked ? static_cast<ByteSource&>(*unpackedCopy) : copied, *rewritten);
        auto const isWanted = [&](Finding const& finding) {
            return std::ranges::all_of(job.settings,
                                       [&](FileSettings const* settings) { return settings->filter.passes(finding); });
        };
        Fixer fixer(
            {options.takesSuggestions, hasPlaces}, isWanted, [&](Edit const& edit) { rewriter.apply(edit); },
            [&](Finding const& finding, std::string_view reason) { tell(name, finding, reason); });
        std::optional<XmlFailure> failure = readXml(source, fixer);
        if (!failure) fixer.finish();
        bool const isPrinted = job.isInput() && !options.isDryRun;
        bool const isWhole = isPrinted || (!failure && (rewriter.hasEdits() || isCopied()));
        if (isWhole) rewriter.finish();
        if (failure) return failure;
        if (isWhole) {
            opened.reset();
            rewritten->finish();
        }
        if (rewriter.hasEdits()) ++rewrittenFiles;
        for (auto const& [fault, count] : fixer.counts().fixed) fixed[fault] += count;
        for (auto const& [fault, count] : fixer.counts().left) left[fault] += count;
        suggested += fixer.counts().suggested;
        return std::nullopt;
    }

    std::unique_ptr<RewrittenDocument> destinationOf(Job const& job, std::string const& name) {
        if (options.isDryRun)
            return std::make_unique<UnifiedDiff>(nameInDiff(name), isColored,
                                                 [](std::string const& diff) { print(diff); });
        if (job.isInput()) return std::make_unique<PrintedDocument>();
        return std::make_unique<ReplacedFile>(system, folders, job.target, job.document);
    }

    // Whether documents of which nothing changes are written too.
    bool isCopied() const { return !options.isDryRun && !options.output.empty(); }

    void tell(std::string const& name, Finding const& finding, std::string_view reason) const {
        std::string lines = findingLine(name, finding, isColored && !isOutputTaken);
        if (!reason.empty()) lines.append("  not rewritten: ").append(reason) += '\n';
        isOutputTaken ? printError(lines) : print(lines);
    }

    void fail(std::string const& name, XmlFailure const& failure) {
        ++failedFiles;
        printError(failureLine(name, failure));
    }

    // "5" and, in brackets, how many of each id.
    static std::string byId(FaultCounts const& counts) {
        std::uint64_t all = 0;
        std::string ids;
        for (auto const& [fault, count] : counts) {
            all += count;
            ids.append(ids.empty() ? " (" : ", ").append(std::to_string(count)).append(" ").append(kindOf(fault).id);
        }
        return std::to_string(all) + (ids.empty() ? "" : ids + ")");
    }

    FixOptions const& options;
    bool isColored, isOutputTaken;
    FileSystem system;
    std::set<fs::path> folders; // in which files were replaced
    std::uint64_t files = 0, failedFiles = 0, rewrittenFiles = 0, suggested = 0;
    FaultCounts fixed, left;
};

} // namespace

int fix(FixOptions const& options) {
    // What the colour parser warns about is legal.
    Core::Log::setHandler([](Core::String const&) {});

    std::vector<std::string> problems;
    std::vector<Job> jobs = jobsOf(options, problems);
    for (std::string const& line : problems) printError("xmlattr: " + line + "\n");
    Configurations configurations;
    if (auto const problem = readConfigurations(configurations, jobs)) {
        printError("xmlattr: " + *problem + "\n");
        return 2;
    }
    Fixing fixing(options, std::ranges::any_of(jobs, &Job::isInput));
    for (Job const& job : jobs) fixing.fix(job);
    fixing.syncFolders();
    if (!options.isQuiet) printError(fixing.summary());
    flushOutput();
    if (fixing.hasFailed() || !problems.empty()) return 2;
    return fixing.hasLeft() ? 1 : 0;
}

} // namespace Command
