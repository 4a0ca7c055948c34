#include "output/Output.h"

#include "output/Json.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <unistd.h>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#endif

namespace Command {

void prepareStandardStreams() {
#ifdef _WIN32
    for (std::FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
    static unsigned const codePage = GetConsoleOutputCP();
    std::atexit([] { SetConsoleOutputCP(codePage); });
    SetConsoleOutputCP(CP_UTF8);
#endif
}

namespace {

constexpr char outOfMemory[] = "xmlattr: out of memory\n";

[[noreturn]] void endWithMessage() {
    try {
        if (std::exception_ptr const thrown = std::current_exception()) std::rethrow_exception(thrown);
    } catch (std::bad_alloc const&) {
        std::fputs(outOfMemory, stderr);
        std::fflush(stderr);
        std::_Exit(2);
    } catch (...) {
    }
    std::abort();
}

} // namespace

int guarded(std::function<int()> const& command) {
    std::set_terminate(endWithMessage);
    try {
        return command();
    } catch (OutputClosed const& closed) {
        if (closed.error != EPIPE) std::fprintf(stderr, "xmlattr: standard output: %s\n", std::strerror(closed.error));
    } catch (std::bad_alloc const&) {
        std::fputs(outOfMemory, stderr);
    } catch (std::exception const& exception) {
        std::fprintf(stderr, "xmlattr: %s\n", exception.what());
    }
    return 2;
}

void print(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) throw OutputClosed{errno};
}

void flushOutput() {
    if (std::fflush(stdout) != 0) throw OutputClosed{errno};
}

void printError(std::string_view text) {
    flushOutput();
    std::fwrite(text.data(), 1, text.size(), stderr);
}

void tellFailure(std::string_view id, std::string const& message, bool asJson) {
    if (!asJson) return printError("xmlattr: " + message + "\n");
    print(toLine({{"severity", "fatal"}, {"id", id}, {"message", message}}));
    flushOutput();
}

bool usesColor(ColorMode mode) {
    if (mode != ColorMode::Auto) return mode == ColorMode::Always;
    char const* const noColor = std::getenv("NO_COLOR");
    char const* const terminal = std::getenv("TERM");
    bool const isDumb = !terminal || std::string_view(terminal) == "dumb";
    return isatty(STDOUT_FILENO) && !(noColor && *noColor) && !isDumb;
}

bool usesTrueColor(ColorMode mode) {
    char const* const colors = std::getenv("COLORTERM");
    std::string_view const value = colors ? colors : "";
    return usesColor(mode) && (mode == ColorMode::Always || value == "truecolor" || value == "24bit");
}

bool isErrorTerminal() {
    return isatty(STDERR_FILENO);
}

std::string colored(std::string_view text, std::string_view code, bool on) {
    if (!on) return std::string(text);
    return std::string("\x1b[").append(code).append("m").append(text).append("\x1b[0m");
}

} // namespace Command
