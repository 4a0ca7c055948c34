#include "checking/Hints.h"
#include "cli/Commands.h"
#include "cli/NamedType.h"
#include "text/Text.h"

#include "xmlattr/core/Log.h"

#include <nlohmann/json.hpp>

namespace Command {

namespace {

using Json = nlohmann::ordered_json;

std::string row(std::string_view name, std::string_view value) {
    std::string line(name);
    line.resize(std::max<std::size_t>(line.size() + 1, 12), ' ');
    return line.append(value) + "\n";
}

std::string swatch(std::uint32_t rgb) {
    std::string code = "48;2";
    for (int const shift : {16, 8, 0}) code.append(";").append(std::to_string(rgb >> shift & 0xFF));
    return colored("      ", code, true);
}

void printText(ShowOptions const& options, Xml::AttributeType const& type, Xml::Shown const& shown,
               Hints const& hints) {
    print(row("type", type.name) + row("text", inQuotes(options.text)) +
          row("accepted", shown.accepted ? "yes" : "no"));
    if (shown.accepted)
        print(row("prints", inQuotes(shown.printed.toUtf8())));
    else {
        if (!hints.variant.empty()) print(row("near", inQuotes(hints.variant) + " is accepted"));
        if (!hints.accepted.empty()) print(row("keywords", joinWith(hints.accepted, "and")));
        if (!hints.nearest.empty()) print(row("nearest", inQuotes(hints.nearest)));
        if (std::string_view const syntax = type.syntax(); !syntax.empty()) print(row("syntax", syntax));
    }
    for (Xml::Part const& part : shown.parts) print(row(part.name, part.value));
    if (shown.rgb && usesTrueColor(options.color)) print(row("swatch", swatch(*shown.rgb)));
    if (options.other) print(row("equal", inQuotes(*options.other) + (shown.equal.value_or(false) ? ": yes" : ": no")));
}

void printJson(ShowOptions const& options, Xml::AttributeType const& type, Xml::Shown const& shown,
               Hints const& hints) {
    Json line = {{"type", type.name}, {"text", options.text}, {"accepted", shown.accepted}};
    if (shown.accepted) line["prints"] = shown.printed.toUtf8();
    if (!hints.variant.empty()) line["acceptedVariant"] = hints.variant;
    if (!hints.accepted.empty()) line["keywords"] = hints.accepted;
    if (!hints.nearest.empty()) line["nearest"] = hints.nearest;
    for (Xml::Part const& part : shown.parts) line["parts"].push_back({{"name", part.name}, {"value", part.value}});
    if (options.other) line["equal"] = shown.equal.value_or(false);
    print(line.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n");
}

} // namespace

int show(ShowOptions const& options) {
    Xml::AttributeType const* const type = findNamedType(options.type);
    if (!type) return 2;
    std::vector<std::string> warnings;
    Core::Log::setHandler([&](Core::String const& message) { warnings.push_back(message.toUtf8()); });
    Core::String const text = Core::String::fromUtf8(options.text);
    Core::String const other = Core::String::fromUtf8(options.other.value_or(""));
    Xml::Shown const shown = type->show(text, options.other ? &other : nullptr);
    Core::Log::setHandler([](Core::String const&) {});
    Hints const hints = shown.accepted ? Hints() : hintsFor(*type, text);
    for (std::string const& warning : warnings) printError("xmlattr: warning: " + warning + "\n");
    (options.format == OutputFormat::Json ? printJson : printText)(options, *type, shown, hints);
    flushOutput();
    return shown.accepted ? 0 : 1;
}

} // namespace Command
