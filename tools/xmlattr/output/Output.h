// Standard output and the terminal.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace Command {

// Until the program ends, Windows leaves line ends as they are, and its console shows UTF-8.
void prepareStandardStreams();

// Standard output does not take any more: a closed pipe, a full disk.
struct OutputClosed {
    int error;
};

// Carries out a command and gives its exit code; where it cannot go on, says why and gives 2. Where memory is missing
// and nothing may be thrown, it ends the program with that message and code.
int guarded(std::function<int()> const& command);

// Writes to standard output; throws OutputClosed.
void print(std::string_view text);
void flushOutput();
// Writes to standard error, after what was printed before.
void printError(std::string_view text);

// Says why a call cannot be carried out: on standard error, or as an object of JSON on standard output.
void tellFailure(std::string_view id, std::string const& message, bool asJson);

enum class ColorMode { Auto, Always, Never };

// Whether standard output shows colours: NO_COLOR and a dumb terminal say no.
bool usesColor(ColorMode mode);
// Whether it also shows any of 16 million.
bool usesTrueColor(ColorMode mode);
bool isErrorTerminal();

// The text in bold or in a colour of the terminal ("1", "31"); itself when `on` is false.
std::string colored(std::string_view text, std::string_view code, bool on);

} // namespace Command
