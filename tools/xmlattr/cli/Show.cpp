#include "cli/Commands.h"
#include "cli/NamedType.h"
#include "output/Json.h"
#include "text/Hints.h"
#include "text/Text.h"

#include "xmlattr/core/Log.h"

#include <algorithm>

namespace Command {

namespace {

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

// What a type makes of a text.
struct Reading {
    bool accepted = false;
    std::string printed;
    Xml::Parts parts;
    bool isEqual = false; // to the other text
    Hints hints;          // of a refused text
};

Reading read(Xml::AttributeType const& type, Core::String const& text, Core::String const& other) {
    Reading reading;
    Xml::AnyAttribute attribute(type);
    reading.accepted = attribute.parseValue(text);
    if (reading.accepted) {
        reading.printed = attribute.getValueAsString().toUtf8();
        reading.parts = attribute.parts();
        reading.isEqual = attribute.isEqual(other);
    } else {
        reading.hints = hintsFor(type, text);
    }
    return reading;
}

void printText(ShowOptions const& options, Xml::AttributeType const& type, Reading const& reading) {
    Hints const& hints = reading.hints;
    print(row("type", type.name()) + row("text", inQuotes(options.text)) +
          row("accepted", reading.accepted ? "yes" : "no"));
    if (reading.accepted)
        print(row("prints", inQuotes(reading.printed)));
    else {
        if (!hints.variant.empty()) print(row("near", inQuotes(hints.variant) + " is accepted"));
        if (!hints.nearest.empty()) print(row("nearest", inQuotes(hints.nearest)));
        print(row("reads", type.syntax().toUtf8()));
    }
    for (Xml::Part const& part : reading.parts.list) print(row(toUtf8(part.name), toUtf8(part.value)));
    if (reading.parts.rgb && usesTrueColor(options.color)) print(row("swatch", swatch(*reading.parts.rgb)));
    if (options.other) print(row("equal", inQuotes(*options.other) + (reading.isEqual ? ": yes" : ": no")));
}

void printJson(ShowOptions const& options, Xml::AttributeType const& type, Reading const& reading) {
    Hints const& hints = reading.hints;
    Json line = {{"type", type.name()}, {"text", options.text}, {"accepted", reading.accepted}};
    if (reading.accepted)
        line["held"] = reading.printed;
    else
        line["syntax"] = type.syntax().toUtf8();
    if (!hints.variant.empty()) line["acceptedVariant"] = hints.variant;
    if (!hints.nearest.empty()) line["nearest"] = hints.nearest;
    for (Xml::Part const& part : reading.parts.list)
        line["parts"].push_back({{"name", toUtf8(part.name)}, {"value", toUtf8(part.value)}});
    if (options.other) line["equal"] = reading.isEqual;
    print(toLine(line));
}

} // namespace

int show(ShowOptions const& options) {
    Xml::AttributeType const* const type = findNamedType(options.type, options.format);
    if (!type) return 2;
    std::vector<std::string> warnings;
    Core::Log::setHandler([&](Core::String const& message) { warnings.push_back(message.toUtf8()); });
    Reading const reading =
        read(*type, Core::String::fromUtf8(options.text), Core::String::fromUtf8(options.other.value_or("")));
    Core::Log::setHandler([](Core::String const&) {});
    for (std::string const& warning : warnings) printError("xmlattr: warning: " + warning + "\n");
    (options.format == OutputFormat::Json ? printJson : printText)(options, *type, reading);
    flushOutput();
    return reading.accepted ? 0 : 1;
}

} // namespace Command
