// The command xmlattr: checks the attributes of documents.

#include "cli/Commands.h"
#include "cli/NamedType.h"
#include "interface/Interface.h"
#include "output/Output.h"
#include "text/Text.h"
#include "xmlattr/core/Version.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <csignal>
#include <sstream>

namespace {

using namespace Command;

template <class T> using Choices = std::vector<std::pair<std::string, T>>;

// An option or an argument that takes one of a few words, which the help shows in place of a placeholder.
template <class T, class Value>
CLI::Option* addChoice(CLI::App& app, std::string const& name, Value& value, Choices<T> const& choices,
                       std::string const& help) {
    std::vector<std::string> words;
    for (auto const& [word, chosen] : choices) words.push_back(word);
    auto const choose = [&value, choices](std::string const& text) {
        for (auto const& [word, chosen] : choices)
            if (word == text) value = chosen;
    };
    auto const check = [words](std::string const& text) {
        bool const isWord = std::find(words.begin(), words.end(), text) != words.end();
        return isWord ? "" : inQuotes(printable(text)) + " is not " + joinWith(words, "or");
    };
    return app.add_option_function<std::string>(name, choose, help)
        ->check(check)
        ->type_name(CLI::detail::join(words, "|"));
}

void addFormat(CLI::App& app, OutputFormat& format) {
    addChoice<OutputFormat>(app, "--format", format, {{"text", OutputFormat::Text}, {"json", OutputFormat::Json}},
                            "Print text, or as json one object a line (default: text)");
}

void addExplain(CLI::App& app, std::string& id) {
    app.add_option("--explain", id, "Print what findings with this id mean, and exit")->type_name("ID");
}

template <class Color> void addColor(CLI::App& app, Color& color) {
    addChoice<ColorMode>(app, "--color", color,
                         {{"auto", ColorMode::Auto}, {"always", ColorMode::Always}, {"never", ColorMode::Never}},
                         "Print in colour; auto does on a terminal, unless NO_COLOR is set (default: auto)");
}

// What a variable of a shell leaves when it is not set.
std::string checkNotEmpty(std::string const& text) {
    return text.empty() ? "the name is empty" : "";
}

template <class Name> void addFile(CLI::App& app, std::string const& option, Name& file, std::string const& help) {
    app.add_option(option, file, help)->check(checkNotEmpty)->type_name("FILE");
}

std::string checkCount(std::string const& text) {
    bool const isCount = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return isCount ? "" : inQuotes(printable(text)) + " is no whole number";
}

// One that stays absent where it does not stand.
void addFlag(CLI::App& app, std::string const& option, std::optional<bool>& flag, std::string const& help) {
    app.add_flag_callback(
        option, [&flag] { flag = true; }, help);
}

// An option that may stand several times, each time with one name or more.
CLI::Option* addNames(CLI::App& app, std::string const& option, std::vector<std::string>& names,
                      std::string const& help) {
    auto const add = [&names](std::string const& list) {
        for (std::string const& name : CLI::detail::split(list, ',')) names.push_back(name);
    };
    return app.add_option_function<std::string>(option, add, help)->trigger_on_parse()->take_last()->type_name("WHAT");
}

CLI::App* addCheck(CLI::App& app, CheckOptions& options, std::string& explained) {
    CLI::App* const command = app.add_subcommand("check", "Report each attribute that is not read as it is written");
    command->add_option("FILE", options.paths, "Documents, stylesheets, directories of both, or - for standard input")
        ->type_name("");
    addFile(*command, "--files-from", options.filesFrom, "Also check the paths in this file, one a line");
    command
        ->add_option("--stdin-name", options.stdinName,
                     "Call standard input by this name in findings (default: <stdin>)")
        ->type_name("NAME");
    Choices<ReportFormat const*> formats;
    for (ReportFormat const& format : reportFormats()) formats.emplace_back(format.word, &format);
    addChoice(*command, "--format", options.run.format, formats,
              "Print text, json (one object a line), sarif, annotations of github or a page of html (default: text)");
    addFile(*command, "--output", options.output, "Write the report to this file, which appears when it is complete");
    addColor(*command, options.run.color);
    addFlag(*command, "-q,--quiet", options.run.isQuiet, "Print no summary and no progress");
    command->add_flag("--strict", options.isStrict,
                      "Fail for warnings too, and also report attributes on elements that do not have them");
    command->add_option("--max-findings", options.run.maxFindings, "Print no more findings than this (default: all)")
        ->check(checkCount)
        ->type_name("N");
    addNames(*command, "--ignore", options.ignored, "Leave out findings with this id, attribute:NAME or element:NAME");
    addNames(*command, "--only", options.only, "Report only findings with this id, attribute:NAME or element:NAME");
    addNames(*command, "--show", options.shown, "Also report what is otherwise only counted")
        ->type_name("passed-over|not-covered|unknown");
    addFlag(*command, "--group", options.run.isGrouped,
            "Print equal findings once, with their number, the most frequent first");
    addFile(*command, "--baseline", options.run.baseline, "Leave out the findings that are recorded in this file");
    addFile(*command, "--write-baseline", options.newBaseline,
            "Record the findings in this file; then they do not count for the exit code");
    addFile(*command, "--config", options.configuration,
            "Take options from this file (default: the nearest xmlattr.toml of each document)");
    command
        ->add_option("-j,--jobs", options.run.jobs,
                     "Check this many files at a time (default: as many as there are cores)")
        ->check(checkCount)
        ->type_name("N");
    addExplain(*command, explained);
    command->footer("The exit code is 0 without an error, 1 with one, and 2 when a file could not be read.");
    return command;
}

CLI::App* addFix(CLI::App& app, FixOptions& options) {
    CLI::App* const command =
        app.add_subcommand("fix", "Rewrite documents so that their values are read as they are meant");
    command->add_option("FILE", options.paths, "Documents, stylesheets, directories of both, or - for standard input")
        ->type_name("");
    command->add_flag("-n,--dry-run", options.isDryRun,
                      "Write nothing; show what would change as a diff for patch -p0");
    command->add_option("-o,--output", options.output, "Write all documents into this folder, and not in place")
        ->check(checkNotEmpty)
        ->type_name("DIR");
    command->add_flag("--suggestions", options.takesSuggestions,
                      "Also write what is only likely to be meant: a missing unit, the nearest word");
    addColor(*command, options.color);
    command->add_flag("-q,--quiet", options.isQuiet, "Print no summary");
    command->footer(
        "Values with one right answer are rewritten where they stand; the new text of standard input goes to standard\n"
        "output; the exit code is 0 when check would report nothing any more, 1 when a finding is left, and 2 when a\n"
        "file could not be read or written.");
    return command;
}

CLI::App* addShow(CLI::App& app, ShowOptions& options) {
    CLI::App* const command = app.add_subcommand("show", "Show what a value type makes of a text");
    command->add_option("TYPE", options.type, "A value type, as the command types lists them")
        ->required()
        ->type_name("");
    command->add_option("TEXT", options.text, "The text; after -- if it looks like an option")->type_name("");
    command->allow_extras(); // a text may begin like an option: -.5pt
    command->add_option("--equal", options.other, "Compare the value with this text too")->type_name("TEXT");
    addFormat(*command, options.format);
    addColor(*command, options.color);
    command->footer("The exit code is 0 when the type accepts the text, and 1 when it refuses it.");
    return command;
}

CLI::App* addTypes(CLI::App& app, TypesOptions& options) {
    CLI::App* const command = app.add_subcommand("types", "List the value types with their syntax");
    command->add_option("NAME", options.name, "A part of the names; without it, all are listed")->type_name("");
    addFormat(*command, options.format);
    command->footer("A line has the name of the type, and what it reads.");
    return command;
}

CLI::App* addProperties(CLI::App& app, PropertiesOptions& options) {
    CLI::App* const command =
        app.add_subcommand("properties", "List the attributes with their value types and grammars");
    command->add_option("NAME", options.name, "A part of the names; without it, all are listed")->type_name("");
    addChoice<Xml::Vocabulary>(*command, "--vocabulary", options.vocabulary,
                               {{"fo", Xml::Vocabulary::Fo}, {"svg", Xml::Vocabulary::Svg}},
                               "List only attributes of XSL-FO or only those of SVG");
    command->add_option("--type", options.type, "List only attributes of this value type")->type_name("TYPE");
    addFormat(*command, options.format);
    command->footer(
        "A line has the vocabulary, the element (* for all), the attribute, its value type or what it is instead,\n"
        "whether it is inherited, the constant with its default, and its grammar in the recommendation.");
    return command;
}

// For the build, so it is not shown.
CLI::App* addInterface(CLI::App& app, InterfaceForm& form) {
    CLI::App* const command = app.add_subcommand("interface", "Print completions or the manual's list");
    command->group("");
    addChoice<InterfaceForm>(*command, "FORM", form,
                             {{"bash", InterfaceForm::Bash},
                              {"zsh", InterfaceForm::Zsh},
                              {"fish", InterfaceForm::Fish},
                              {"manual", InterfaceForm::Manual}},
                             "Print completions for this shell, or the options as mdoc")
        ->required();
    return command;
}

int run(int argc, char** argv) {
    CLI::App app("Check the attributes of XSL-FO and SVG documents", "xmlattr");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.set_version_flag("--version", std::string("xmlattr ") + Core::version(), "Print the version and exit");
    app.require_subcommand(0, 1);
    app.get_formatter()->label("REQUIRED", ""); // the usage shows it
    app.get_formatter()->label("Positionals", "Arguments");
    std::string explained;
    addExplain(app, explained);

    CheckOptions checking;
    FixOptions fixing;
    ShowOptions showing;
    TypesOptions typing;
    PropertiesOptions listing;
    InterfaceForm form{};
    CLI::App const* const checkCommand = addCheck(app, checking, explained);
    CLI::App const* const fixCommand = addFix(app, fixing);
    CLI::App const* const showCommand = addShow(app, showing);
    CLI::App const* const typesCommand = addTypes(app, typing);
    CLI::App const* const propertiesCommand = addProperties(app, listing);
    CLI::App const* const interfaceCommand = addInterface(app, form);

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
    if (*fixCommand) {
        if (fixing.paths.empty()) return usage("no file to fix");
        return fix(fixing);
    }
    if (*showCommand) {
        std::vector<std::string> extras = showCommand->remaining();
        if (!extras.empty() && extras.front() == "--") extras.erase(extras.begin());
        if (showCommand->count("TEXT") + extras.size() != 1) return usage("show takes a value type and a text");
        if (!extras.empty()) showing.text = extras[0];
        return show(showing);
    }
    if (*typesCommand) return types(typing);
    if (*propertiesCommand) return properties(listing);
    if (*interfaceCommand) {
        print(describeInterface(app, form, {{"TYPE", typeNames()}, {"ID", explainedIds()}}));
        flushOutput();
        return 0;
    }
    return usage("no command given");
}

} // namespace

int main(int argc, char** argv) {
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN); // a reader that has enough is found out by the write
#endif
    prepareStandardStreams();
    return guarded([&] { return run(argc, argv); });
}
