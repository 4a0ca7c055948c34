// The command xmlattr: checks the attributes of documents.

#include "Commands.h"

#include <CLI/CLI.hpp>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <map>

namespace {

using namespace Command;

void addFormat(CLI::App& app, OutputFormat& format) {
    static std::map<std::string, OutputFormat> const formats = {{"text", OutputFormat::Text},
                                                                {"json", OutputFormat::Json}};
    app.add_option("--format", format, "text, or json: one object a line")
        ->transform(CLI::Transformer(formats))
        ->type_name("FORMAT");
}

void addColor(CLI::App& app, ColorMode& color) {
    static std::map<std::string, ColorMode> const modes = {
        {"auto", ColorMode::Auto}, {"always", ColorMode::Always}, {"never", ColorMode::Never}};
    app.add_option("--color", color, "auto, always or never")->transform(CLI::Transformer(modes))->type_name("WHEN");
}

int run(int argc, char** argv) {
    CLI::App app("Checks the attribute values of XSL-FO and SVG documents.", "xmlattr");
    app.set_version_flag("--version", "xmlattr " XMLATTR_VERSION);
    app.require_subcommand(0, 1);
    std::string explained;
    app.add_option("--explain", explained, "What messages with this id mean")->type_name("ID");

    CheckOptions checking;
    CLI::App* const checkCommand = app.add_subcommand("check", "Report each attribute that its value type refuses");
    checkCommand->add_option("FILE", checking.paths,
                             "Documents; directories, for the .fo, .xml and .svg files below; - for standard input");
    checkCommand->add_option("--files-from", checking.filesFrom, "Read paths from this file, one a line")
        ->type_name("FILE");
    checkCommand->add_option("--stdin-name", checking.stdinName, "What to call standard input")->type_name("NAME");
    addFormat(*checkCommand, checking.format);
    addColor(*checkCommand, checking.color);
    checkCommand->add_flag("-q,--quiet", checking.isQuiet, "No summary and no progress");
    checkCommand->add_option("--max-findings", checking.maxFindings, "Show no more findings than this")->type_name("N");
    checkCommand->add_option("--explain", explained, "What messages with this id mean")->type_name("ID");

    // A text may begin like an option: -5pt.
    ShowOptions showing;
    CLI::App* const showCommand = app.add_subcommand("show", "Show what a value type makes of a text");
    std::vector<std::string> words;
    showCommand->add_option("TYPE TEXT", words, "The value type and the text")->type_name("");
    showCommand->add_option("--equal", showing.other, "Also compare with this text")->type_name("TEXT");
    showCommand->allow_extras();
    addFormat(*showCommand, showing.format);
    addColor(*showCommand, showing.color);

    TypesOptions typing;
    CLI::App* const typesCommand = app.add_subcommand("types", "List the value types with their syntax");
    typesCommand->add_option("NAME", typing.name, "Only types whose name contains this")->type_name("");
    addFormat(*typesCommand, typing.format);

    PropertiesOptions listing;
    CLI::App* const propertiesCommand = app.add_subcommand("properties", "List the catalogue of attributes");
    propertiesCommand->add_option("NAME", listing.name, "Only attributes whose name contains this")->type_name("");
    propertiesCommand->add_option("--vocabulary", listing.vocabulary, "Only fo or only svg")
        ->check(CLI::IsMember({"fo", "svg"}))
        ->type_name("");
    propertiesCommand->add_option("--type", listing.type, "Only attributes of this value type")->type_name("TYPE");
    addFormat(*propertiesCommand, listing.format);

    try {
        app.parse(argc, argv);
    } catch (CLI::ParseError const& error) {
        return app.exit(error) == 0 ? 0 : 2;
    }
    auto const usage = [&](CLI::App const& used, std::string const& problem) {
        printError("xmlattr: " + problem + "\n" + used.help());
        return 2;
    };
    if (!explained.empty()) return explain(explained);
    if (*checkCommand) {
        if (checking.paths.empty() && checking.filesFrom.empty()) return usage(*checkCommand, "no file to check");
        return check(checking);
    }
    if (*showCommand) {
        for (std::string const& extra : showCommand->remaining()) words.push_back(extra);
        if (words.size() != 2) return usage(*showCommand, "show takes a value type and a text");
        showing.type = words[0];
        showing.text = words[1];
        return show(showing);
    }
    if (*typesCommand) return types(typing);
    if (*propertiesCommand) return properties(listing);
    return usage(app, "what is to be done?");
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
