// What the command can do; each call gives the exit code: 0 fine, 1 something was found, 2 the
// call could not be carried out.
#pragma once

#include "output/Output.h"
#include "selecting/Configuration.h"

#include "xmlattr/catalogue/Catalogue.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Command {

enum class OutputFormat { Text, Json };

struct CheckOptions {
    std::vector<std::string> paths;
    std::string filesFrom;
    std::string stdinName = "<stdin>";
    std::string configuration; // the file; empty for the nearest of each document
    std::string output;        // the file to write the report to; empty for standard output
    RunSettings run;           // what is absent may stand in a configuration file
    bool isStrict = false;
    std::vector<std::string> ignored, only, shown; // as Filter and Shown have them
    std::optional<std::string> newBaseline;        // the file
};

struct FixOptions {
    std::vector<std::string> paths;
    std::string output; // the folder for what is written; empty to write in place
    ColorMode color = ColorMode::Auto;
    bool isDryRun = false, takesSuggestions = false, isQuiet = false;
};

struct ShowOptions {
    std::string type, text;
    std::optional<std::string> other;
    OutputFormat format = OutputFormat::Text;
    ColorMode color = ColorMode::Auto;
};

struct TypesOptions {
    std::string name; // what the type's name contains
    OutputFormat format = OutputFormat::Text;
};

struct PropertiesOptions {
    std::string name; // what the attribute's name contains
    std::optional<Xml::Vocabulary> vocabulary;
    std::optional<std::string> type; // the value type
    OutputFormat format = OutputFormat::Text;
};

int check(CheckOptions const& options);
int fix(FixOptions const& options);
int show(ShowOptions const& options);
int types(TypesOptions const& options);
int properties(PropertiesOptions const& options);
// What findings with this id mean, and what to do about them.
int explain(std::string const& id);
std::vector<std::string> explainedIds();

} // namespace Command
