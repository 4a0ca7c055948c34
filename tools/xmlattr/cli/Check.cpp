#include "checking/Checker.h"
#include "cli/Commands.h"
#include "cli/Files.h"
#include "output/Report.h"
#include "text/Text.h"

#include "xmlattr/core/Log.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>

namespace Command {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const {
        if (file != stdin) std::fclose(file);
    }
};

using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

// Progress, for a person who waits at a terminal.
class Progress {
public:
    Progress(std::size_t total, bool on) : total(total), on(on && total > 20 && isErrorTerminal()) {}
    ~Progress() { clear(); }

    void next(std::string const& file) {
        ++done;
        if (!on) return;
        flushOutput();
        std::fprintf(stderr, "\r\x1b[K[%zu/%zu] %s", done, total, printable(file).c_str());
    }

    void clear() const {
        if (on) std::fputs("\r\x1b[K", stderr);
    }

private:
    std::size_t done = 0, total;
    bool on;
};

} // namespace

int check(CheckOptions const& options) {
    // What the colour parser warns about is legal.
    Core::Log::setHandler([](Core::String const&) {});

    std::vector<std::string> paths = options.paths;
    std::string problem;
    if (!options.filesFrom.empty() && !readPaths(options.filesFrom, paths, problem)) {
        printError("xmlattr: " + problem + "\n");
        return 2;
    }
    FileList const list = gatherFiles(paths);
    for (std::string const& line : list.problems) printError("xmlattr: " + line + "\n");

    ReportFile report(options.output);
    std::unique_ptr<Reporter> const reporter =
        options.format->make(report, {options.output.empty() && usesColor(options.color), options.isQuiet});
    Counts counts;
    Progress progress(list.files.size(), !options.isQuiet);
    for (std::string const& file : list.files) {
        std::string const& name = file == "-" ? options.stdinName : file;
        progress.next(name);
        auto const tell = [&](Finding const& finding) {
            progress.clear();
            reporter->finding(name, finding);
        };
        Checker checker(counts, tell, {options.maxFindings, options.isStrict});
        ++counts.files;
        OpenFile const opened(file == "-" ? stdin : std::fopen(file.c_str(), "rb"));
        std::optional<XmlFailure> const failure =
            opened ? readXml(opened.get(), checker)
                   : XmlFailure{"unreadable", std::string("cannot be read: ") + std::strerror(errno), std::nullopt};
        if (!failure) {
            checker.finish();
            continue;
        }
        ++counts.failedFiles;
        progress.clear();
        reporter->failure(name, *failure);
    }
    progress.clear();
    reporter->finish(counts, std::min(counts.findings(), options.maxFindings));
    report.complete();
    if (counts.failedFiles > 0 || !list.problems.empty()) return 2;
    return counts.errors > 0 || (options.isStrict && counts.warnings > 0) ? 1 : 0;
}

} // namespace Command
