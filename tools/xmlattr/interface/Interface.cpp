#include "interface/Interface.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace Command {

namespace {

using Texts = std::vector<std::string>;

// One option, or one argument without a name of its own.
struct Argument {
    Texts shortNames, longNames; // without hyphens; none for an argument
    std::string placeholder, help;
    Texts words; // that the placeholder stands for
    bool isRequired, isRepeated;

    bool isOption() const { return !shortNames.empty() || !longNames.empty(); }
    bool isChoice() const { return placeholder.find('|') != std::string::npos; }
    bool takesFiles() const { return placeholder == "FILE" || placeholder == "DIR"; }

    Texts spellings() const {
        Texts all;
        for (std::string const& name : shortNames) all.push_back("-" + name);
        for (std::string const& name : longNames) all.push_back("--" + name);
        return all;
    }
};

// The command itself, which has no name, or one of its commands.
struct Part {
    std::string name, help, footer;
    std::vector<Argument> options, arguments;
};

std::string joined(Texts const& texts, std::string_view between) {
    std::string all;
    for (std::string const& text : texts) all.append(all.empty() ? "" : between).append(text);
    return all;
}

std::string replaced(std::string text, std::string_view part, std::string_view with) {
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += with.size())
        text.replace(at, part.size(), with);
    return text;
}

Texts split(std::string const& text, char separator) {
    Texts parts(1);
    for (char const letter : text)
        if (letter == separator)
            parts.emplace_back();
        else
            parts.back() += letter;
    return parts;
}

Argument argumentOf(CLI::Option const& option, KnownWords const& words) {
    bool const isOption = option.nonpositional();
    Argument argument{option.get_snames(),
                      option.get_lnames(),
                      isOption ? option.get_type_name() : option.get_name(true),
                      replaced(option.get_description(), "\n", " "),
                      {},
                      option.get_required(),
                      option.get_items_expected_max() > 1};
    if (isOption && option.get_items_expected_max() == 0) argument.placeholder.clear();
    if (argument.isChoice()) argument.words = split(argument.placeholder, '|');
    if (auto const known = words.find(argument.placeholder); known != words.end()) argument.words = known->second;
    return argument;
}

std::vector<Part> partsOf(CLI::App const& app, KnownWords const& words) {
    std::vector<CLI::App const*> apps = {&app};
    for (CLI::App const* const command : app.get_subcommands(std::function<bool(CLI::App const*)>()))
        if (!command->get_group().empty()) apps.push_back(command);
    std::vector<Part> parts;
    for (CLI::App const* const each : apps) {
        Part part{each == &app ? "" : each->get_name(), each->get_description(), each->get_footer(), {}, {}};
        for (CLI::Option const* const option : each->get_options()) {
            Argument argument = argumentOf(*option, words);
            (argument.isOption() ? part.options : part.arguments).push_back(std::move(argument));
        }
        parts.push_back(std::move(part));
    }
    return parts;
}

Texts namesOf(std::vector<Part> const& parts) {
    Texts names;
    for (Part const& part : parts)
        if (!part.name.empty()) names.push_back(part.name);
    return names;
}

Texts spellingsOf(std::vector<Argument> const& options) {
    Texts all;
    for (Argument const& option : options)
        for (std::string const& spelling : option.spellings()) all.push_back(spelling);
    return all;
}

// What bash completes where this is to be written.
std::string bashWords(Argument const& argument) {
    return argument.takesFiles() ? "files=yes" : "words='" + joined(argument.words, " ") + "'";
}

std::string bash(std::vector<Part> const& parts) {
    std::string const names = joined(namesOf(parts), "|");
    std::string text = "# Completions of xmlattr for bash.\n"
                       "_xmlattr() {\n"
                       "    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}\n"
                       "    local command= options= words= files= word\n"
                       "    # bash takes --option=value for three words.\n"
                       "    if [[ $current == = ]]; then current=\n"
                       "    elif [[ $before == = ]]; then before=${COMP_WORDS[COMP_CWORD - 2]}; fi\n"
                       "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
                       "        case $word in " +
                       names +
                       ") command=$word; break ;; esac\n"
                       "    done\n"
                       "    case $command:$before in\n";
    for (Part const& part : parts)
        for (Argument const& option : part.options) {
            if (option.placeholder.empty()) continue;
            Texts patterns;
            for (std::string const& spelling : option.spellings()) patterns.push_back(part.name + ":" + spelling);
            text += "    " + joined(patterns, " | ") + ") " + bashWords(option) + " ;;\n";
        }
    text += "    *)\n"
            "        case $command in\n";
    for (Part const& part : parts) {
        text += "        '" + part.name + "') options='" + joined(spellingsOf(part.options), " ") + "'";
        if (part.name.empty())
            text += " words='" + replaced(names, "|", " ") + "'";
        else if (!part.arguments.empty())
            text += " " + bashWords(part.arguments.front());
        text += " ;;\n";
    }
    return text + "        esac\n"
                  "        if [[ $current == -* ]]; then words=$options files=; fi ;;\n"
                  "    esac\n"
                  "    if [[ $files ]]; then\n"
                  "        compopt -o filenames 2>/dev/null\n"
                  "        mapfile -t COMPREPLY < <(compgen -f -- \"$current\")\n"
                  "    else\n"
                  "        mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
                  "    fi\n"
                  "}\n"
                  "complete -F _xmlattr xmlattr\n";
}

std::string inShellQuotes(std::string const& text) {
    return "'" + replaced(text, "'", "'\\''") + "'";
}

// A description as _arguments reads it.
std::string zshText(std::string text) {
    for (char const* const special : {"\\", "[", "]", ":"}) text = replaced(text, special, "\\" + std::string(special));
    return text;
}

std::string zshAction(Argument const& argument) {
    return ":" + zshText(argument.placeholder) + ":" +
           (argument.takesFiles()    ? "_files"
            : argument.words.empty() ? " "
                                     : "(" + joined(argument.words, " ") + ")");
}

// The options of a part as _arguments reads them, one a line.
std::string zshRows(Part const& part, std::string const& indent) {
    std::string text;
    for (Argument const& option : part.options) {
        Texts const spellings = option.spellings();
        for (std::string const& spelling : spellings) {
            std::string row = option.isRepeated ? "*" : "(" + joined(spellings, " ") + ")";
            row += spelling + "[" + zshText(option.help) + "]";
            if (!option.placeholder.empty()) row += zshAction(option);
            text += indent + inShellQuotes(row) + " \\\n";
        }
    }
    for (Argument const& argument : part.arguments)
        text += indent + inShellQuotes((argument.isRepeated ? "*" : "") + zshAction(argument)) + " \\\n";
    return text;
}

std::string zsh(std::vector<Part> const& parts) {
    std::string commands, arguments;
    for (Part const& part : parts) {
        if (part.name.empty()) continue;
        commands += "        " + inShellQuotes(zshText(part.name) + ":" + part.help) + "\n";
        std::string rows = zshRows(part, "            ");
        rows.erase(rows.size() - 3); // the last line does not go on
        arguments += "        " + part.name + ")\n            _arguments -s \\\n" + rows + " ;;\n";
    }
    return "#compdef xmlattr\n"
           "# Completions of xmlattr for zsh.\n"
           "_xmlattr() {\n"
           "    local state line\n"
           "    local -a commands=(\n" +
           commands +
           "    )\n"
           "    _arguments -C \\\n" +
           zshRows(parts.front(), "        ") +
           "        '1:command:->command' '*::argument:->argument'\n"
           "    case $state in\n"
           "    command) _describe command commands ;;\n"
           "    argument)\n"
           "        case $words[1] in\n" +
           arguments +
           "        esac ;;\n"
           "    esac\n"
           "}\n"
           "_xmlattr \"$@\"\n";
}

std::string fish(std::vector<Part> const& parts) {
    std::string text = "# Completions of xmlattr for fish.\ncomplete -c xmlattr -f\n";
    for (Part const& part : parts) {
        if (!part.name.empty())
            text += "complete -c xmlattr -n __fish_use_subcommand -a " + part.name + " -d " + inShellQuotes(part.help) +
                    "\n";
        std::string const condition =
            part.name.empty() ? "__fish_use_subcommand" : "'__fish_seen_subcommand_from " + part.name + "'";
        std::string const start = "complete -c xmlattr -n " + condition;
        auto const values = [](Argument const& argument) {
            return argument.takesFiles() ? std::string(" -r -F")
                                         : " -x -a " + inShellQuotes(joined(argument.words, " "));
        };
        for (Argument const& option : part.options) {
            text += start;
            for (std::string const& name : option.shortNames) text += " -s " + name;
            for (std::string const& name : option.longNames) text += " -l " + name;
            if (!option.placeholder.empty()) text += values(option);
            text += " -d " + inShellQuotes(option.help) + "\n";
        }
        if (part.arguments.empty()) continue;
        Argument const& first = part.arguments.front();
        if (first.takesFiles())
            text += start + " -F\n";
        else if (!first.words.empty())
            text += start + " -a " + inShellQuotes(joined(first.words, " ")) + "\n";
    }
    return text;
}

// A text in short lines, of which none is taken for a request.
std::string manualText(std::string text) {
    text = replaced(replaced(std::move(text), "\\", "\\e"), "--", "\\-\\-");
    std::string lines, line;
    for (std::string const& word : split(text, ' ')) {
        if (line.size() + 1 + word.size() > 80) {
            lines += line + "\n";
            line.clear();
        }
        if (!line.empty())
            line += " ";
        else if (word.starts_with('.') || word.starts_with('\''))
            line += "\\&";
        line += word;
    }
    return lines + line;
}

std::string manualValue(Argument const& argument) {
    return argument.isChoice() ? "Cm " + joined(argument.words, " | ") : "Ar " + argument.placeholder;
}

std::string manual(std::vector<Part> const& parts) {
    std::string text;
    for (Part const& part : parts) {
        text += part.name.empty() ? ".Ss All commands\n" : ".Ss xmlattr " + part.name + "\n";
        if (!part.name.empty()) {
            text += ".Nm\n.Cm " + part.name + "\n.Op Ar options\n";
            for (Argument const& argument : part.arguments) {
                std::string const value = manualValue(argument) + (argument.isRepeated ? " ..." : "");
                text += argument.isRequired ? "." + value + "\n" : ".Op " + value + "\n";
            }
            text += ".Pp\n" + manualText(part.help + ".") + "\n";
        }
        text += ".Bl -tag -width Ds\n";
        for (Argument const& argument : part.arguments)
            text += ".It Ar " + argument.placeholder + "\n" + manualText(argument.help + ".") + "\n";
        for (Argument const& option : part.options) {
            Texts spellings;
            for (std::string const& name : option.shortNames) spellings.push_back("Fl " + name);
            for (std::string const& name : option.longNames) spellings.push_back("Fl -" + name);
            text += ".It " + joined(spellings, " , ");
            if (!option.placeholder.empty()) text += " " + manualValue(option);
            text += "\n" + manualText(option.help + ".") + "\n";
        }
        text += ".El\n";
        if (!part.footer.empty()) text += ".Pp\n" + manualText(replaced(part.footer, "\n", " ")) + "\n";
    }
    return text;
}

} // namespace

std::string describeInterface(CLI::App const& app, InterfaceForm form, KnownWords const& words) {
    std::vector<Part> const parts = partsOf(app, words);
    switch (form) {
    case InterfaceForm::Bash: return bash(parts);
    case InterfaceForm::Zsh: return zsh(parts);
    case InterfaceForm::Fish: return fish(parts);
    case InterfaceForm::Manual: return manual(parts);
    }
    return {};
}

} // namespace Command
