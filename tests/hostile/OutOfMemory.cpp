// Checks a document again and again, and lets the first allocation fail, then the second, until none does. Every run
// ends with its report whole or not there at all, and says what was missing.
//
//   out_of_memory FOLDER
#include "cli/Commands.h"
#include "output/Output.h"
#include "output/Report.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::atomic<long> left = -1; // allocations until the one that fails; negative when none does

void* allocate(std::size_t size) {
    if (left >= 0 && left-- == 0) return nullptr;
    return std::malloc(size == 0 ? 1 : size);
}

} // namespace

void* operator new(std::size_t size) {
    if (void* const memory = allocate(size)) return memory;
    throw std::bad_alloc();
}
void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
    return allocate(size);
}
// Inlined, g++ takes the memory for that of another allocation.
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace {

std::string contentOf(std::string const& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

constexpr int afterFailure = 64; // added to the code of a run in which an allocation failed

// How many runs with this format end otherwise than they should.
int check(Command::ReportFormat const& format, std::string const& document, std::string const& folder) {
    std::string const report = folder + "/report", errors = folder + "/errors";
    Command::CheckOptions options;
    options.paths = {document};
    options.output = report;
    options.run.format = &format;
    std::string whole;
    int failures = 0;
    for (long allocations = -1; failures < 20; ++allocations) {
        std::filesystem::remove(report);
        pid_t const child = fork();
        if (child == 0) {
            if (!std::freopen(errors.c_str(), "wb", stderr)) _exit(64);
            left = allocations;
            int const code = Command::guarded([&] { return Command::check(options); });
            std::fflush(stderr);
            _exit(code + (allocations >= 0 && left < 0 ? afterFailure : 0));
        }
        int status = 0;
        waitpid(child, &status, 0);
        int const code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        if (allocations < 0) {
            whole = contentOf(report);
            if (whole.empty()) return 1;
            continue;
        }
        bool const isWhole = contentOf(report) == whole, isThere = std::filesystem::exists(report);
        if (code == 1 && isWhole) return failures; // nothing failed any more
        bool const isTold = contentOf(errors).find("out of memory") != std::string::npos;
        bool const hasGivenUp = code == 2 || code == afterFailure + 2;
        if (hasGivenUp ? !isThere && isTold : code == afterFailure + 1 && isWhole) continue;
        std::printf("%.*s, allocation %ld: code %d, the report is %s, \"%s\"\n", static_cast<int>(format.word.size()),
                    format.word.data(), allocations, code,
                    isWhole   ? "whole"
                    : isThere ? "cut"
                              : "absent",
                    contentOf(errors).c_str());
        ++failures;
    }
    return failures;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    std::string const folder = argv[1], document = folder + "/document.fo";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    std::ofstream(document) << "<block xmlns='http://www.w3.org/1999/XSL/Format' id='a' ref-id='b' widht='1'\n"
                               " color='Rot' border='1q solid red' font='12pt/14pt serif'/>";
    int failures = 0;
    for (Command::ReportFormat const& format : Command::reportFormats()) failures += check(format, document, folder);
    return failures == 0 ? 0 : 1;
}
