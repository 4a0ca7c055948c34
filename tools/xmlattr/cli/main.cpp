// The command xmlattr: checks the attributes of documents.

#include "cli/Commands.h"
#include "text/Text.h"
#include "xmlattr/core/Version.h"

#include <CLI/CLI.hpp>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <sstream>

namespace {

using namespace Command;

template <class T> using Choices = std::vector<std::pair<std::string, T>>;

// An option that takes one of a few words.
template <class T, class Value>
void addChoice(CLI::App& app, std::string const& name, Value& value, std::string const& placeholder,
               Choices<T> const& choices, std::string const& help) {
    auto const choose = [&value, choices](std::string const& text) {
        for (auto const& [word, chosen] : choices)
            if (word == text) value = chosen;
    };
    auto const check = [choices](std::string const& text) {
        std::vector<std::string> words;
        for (auto const& [word, chosen] : choices) {
            if (word == text) return std::string();
            words.push_back(word);
        }
        return inQuotes(printable(text)) + " is not " + joinWith(words, "or");
    };
    app.add_option_function<std::string>(name, choose, help)->check(check)->type_name(placeholder);
}

void addFormat(CLI::App& app, OutputFormat& format) {
    addChoice<OutputFormat>(app, "--format", format, "FORMAT",
                            {{"text", OutputFormat::Text}, {"json", OutputFormat::Json}},
                            "text, or json: one object a line");
}

void addColor(CLI::App& app, ColorMode& color) {
    addChoice<ColorMode>(app, "--color", color, "WHEN",
                         {{"auto", ColorMode::Auto}, {"always", ColorMode::Always}, {"never", ColorMode::Never}},
                         "auto, always or never");
}

std::string checkCount(std::string const& text) {
    bool const isCount = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return isCount ? "" : inQuotes(printable(text)) + " is no whole number";
}

int run(int argc, char** argv) {
    CLI::App app("Checks the attribute values of XSL-FO and SVG documents.", "xmlattr");
    app.set_version_flag("--version", std::string("xmlattr ") + Core::version());
    app.require_subcommand(0, 1);
    app.get_formatter()->label("REQUIRED", ""); // the usage shows it
    std::string explained;
    app.add_option("--explain", explained, "What messages with this id mean")->type_name("ID");

    CheckOptions checking;
    CLI::App* const checkCommand =
        app.add_subcommand("check", "Report each attribute that is not read as it is written");
    checkCommand
        ->add_option("FILE", checking.paths,
                     "Documents; directories, for their documents and stylesheets; - for standard input")
        ->type_name("");
    checkCommand->add_option("--files-from", checking.filesFrom, "Read paths from this file, one a line")
        ->type_name("FILE");
    checkCommand->add_option("--stdin-name", checking.stdinName, "What to call standard input")->type_name("NAME");
    addFormat(*checkCommand, checking.format);
    addColor(*checkCommand, checking.color);
    checkCommand->add_flag("-q,--quiet", checking.isQuiet, "No summary and no progress");
    checkCommand->add_flag("--strict", checking.isStrict,
                           "Report attributes on elements that do not have them, and fail for warnings too");
    checkCommand->add_option("--max-findings", checking.maxFindings, "Show no more findings than this")
        ->check(checkCount)
        ->type_name("N");
    checkCommand->add_option("--explain", explained, "What messages with this id mean")->type_name("ID");

    ShowOptions showing;
    CLI::App* const showCommand = app.add_subcommand("show", "Show what a value type makes of a text");
    showCommand->add_option("TYPE", showing.type, "The value type")->required()->type_name("");
    CLI::Option const* const textOption =
        showCommand->add_option("TEXT", showing.text, "The text; after -- when it could be an option")->type_name("");
    showCommand->allow_extras(); // a text may begin like an option: -.5pt
    showCommand->add_option("--equal", showing.other, "Also compare with this text")->type_name("TEXT");
    addFormat(*showCommand, showing.format);
    addColor(*showCommand, showing.color);

    TypesOptions typing;
    CLI::App* const typesCommand = app.add_subcommand("types", "List the value types with their syntax");
    typesCommand->add_option("NAME", typing.name, "Only types whose name contains this")->type_name("");
    addFormat(*typesCommand, typing.format);

    PropertiesOptions listing;
    CLI::App* const propertiesCommand = app.add_subcommand("properties", "List the catalogue of attributes");
    propertiesCommand->add_option("NAME", listing.name, "Only attributes whose name contains this")->type_name("");
    addChoice<Xml::Vocabulary>(*propertiesCommand, "--vocabulary", listing.vocabulary, "NAME",
                               {{"fo", Xml::Vocabulary::Fo}, {"svg", Xml::Vocabulary::Svg}}, "Only fo or only svg");
    propertiesCommand->add_option("--type", listing.type, "Only attributes of this value type")->type_name("TYPE");
    addFormat(*propertiesCommand, listing.format);

    try {
        app.parse(argc, argv);
    } catch (CLI::ParseError const& error) {
        std::ostringstream output, problem;
        int const code = app.exit(error, output, problem);
        print(output.str());
        flushOutput();
        printError(problem.str());
        return code == 0 ? 0 : 2;
    }
    auto const usage = [&](std::string const& problem) {
        printError("xmlattr: " + problem + "\n" + app.help()); // of the command that was named
        return 2;
    };
    if (!explained.empty()) return explain(explained);
    if (*checkCommand) {
        if (checking.paths.empty() && checking.filesFrom.empty()) return usage("no file to check");
        return check(checking);
    }
    if (*showCommand) {
        std::vector<std::string> extras = showCommand->remaining();
        if (!extras.empty() && extras.front() == "--") extras.erase(extras.begin());
        if (textOption->count() + extras.size() != 1) return usage("show takes a value type and a text");
        if (!extras.empty()) showing.text = extras[0];
        return show(showing);
    }
    if (*typesCommand) return types(typing);
    if (*propertiesCommand) return properties(listing);
    return usage("no command given");
}

} // namespace

int main(int argc, char** argv) {
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN); // a reader that has enough is found out by the write
#endif
    try {
        return run(argc, argv);
    } catch (OutputClosed const& closed) {
        if (closed.error != EPIPE) std::fprintf(stderr, "xmlattr: standard output: %s\n", std::strerror(closed.error));
    } catch (std::exception const& exception) {
        std::fprintf(stderr, "xmlattr: %s\n", exception.what());
    }
    return 2;
}
