#include "output/ReportFile.h"

#include "output/Output.h"
#include "text/Path.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

namespace Command {

namespace {

[[noreturn]] void fail(std::string const& path, std::string const& reason) {
    throw std::runtime_error(path + ": cannot be written: " + reason);
}

} // namespace

ReportFile::ReportFile(std::string newPath) : path(std::move(newPath)) {
    if (path.empty()) return;
    std::error_code unknown;
    std::filesystem::file_status const status = std::filesystem::status(pathOf(path), unknown);
    // A pipe or a device is written to as it is.
    bool const isFile = !std::filesystem::exists(status) || std::filesystem::is_regular_file(status);
    if (isFile) path = followed(pathOf(path)).string(); // a link stays
    if (isFile) unfinished = path + "." + std::to_string(getpid()) + ".part";
    file.reset(std::fopen((isFile ? unfinished : path).c_str(), "wb"));
    if (!file) fail(path, std::strerror(errno));
    if (isFile && std::filesystem::exists(status))
        std::filesystem::permissions(pathOf(unfinished), status.permissions(), unknown); // those of what it replaces
}

ReportFile::~ReportFile() {
    if (!file) return;
    file.reset();
    if (!unfinished.empty()) std::remove(unfinished.c_str());
}

void ReportFile::write(std::string_view text) {
    if (path.empty()) return print(text);
    if (std::fwrite(text.data(), 1, text.size(), file.get()) != text.size()) fail(path, std::strerror(errno));
}

void ReportFile::complete() {
    if (path.empty()) return flushOutput();
    bool isWritten = std::fflush(file.get()) == 0;
#ifndef _WIN32
    isWritten =
        isWritten && (unfinished.empty() || fsync(fileno(file.get())) == 0); // or the name might outlive the contents
#endif
    if (!isWritten) fail(path, std::strerror(errno));
    file.reset();
    if (unfinished.empty()) return;
    std::error_code problem;
    std::filesystem::rename(pathOf(unfinished), pathOf(path), problem);
    if (!problem) return;
    std::remove(unfinished.c_str());
    fail(path, problem.message());
}

} // namespace Command
