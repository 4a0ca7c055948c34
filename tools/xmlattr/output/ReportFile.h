// Where a report is written.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace Command {

// Standard output, or a file that gets its name when it is complete: until then, and for ever when the run ends
// early, what had the name before keeps it.
class ReportFile {
public:
    // Standard output when the path is empty. Throws std::runtime_error when nothing can be written there.
    explicit ReportFile(std::string path);
    // Takes away what is not complete.
    ~ReportFile();
    ReportFile(ReportFile const&) = delete;
    ReportFile& operator=(ReportFile const&) = delete;

    // Throws OutputClosed for standard output, std::runtime_error for a file.
    void write(std::string_view text);
    // The report is at its end. Throws as write() does; then the file is not complete.
    void complete();

private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::string path, unfinished; // the name, and the one until the report is complete
    std::unique_ptr<std::FILE, Close> file;
};

} // namespace Command
