// The commands and options in the forms that shells and the manual page read.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace Command {

enum class InterfaceForm { Bash, Zsh, Fish, Manual };

// The words that a placeholder of the help stands for: "TYPE" and the names of all value types, say.
using KnownWords = std::map<std::string, std::vector<std::string>>;

// Completions for a shell, or the commands and options in the language of manual pages, mdoc. Where the placeholder of
// an option is a choice (text|json), its words are completed; where it is FILE or DIR, the names of files are.
std::string describeInterface(CLI::App const& app, InterfaceForm form, KnownWords const& words);

} // namespace Command
