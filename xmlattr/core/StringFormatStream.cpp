#include "xmlattr/core/StringFormatStream.h"

#include "xmlattr/core/Append.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <type_traits>

namespace Core {

namespace {

struct Placeholder {
    std::size_t index = 0;
    bool isMeasure = false;
    std::size_t length = 0; // of its text, braces included; 0: no placeholder
};

constexpr std::size_t maxIndex = 1000; // no format has as many arguments

// Reads "{N}" or "{N:0.###}" at the start of a text.
Placeholder readPlaceholder(std::u16string_view text) {
    Placeholder found;
    std::size_t i = 1;
    for (; i < text.size() && isDigit(text[i]); ++i)
        found.index = std::min(found.index * 10 + (text[i] - u'0'), maxIndex);
    if (i == 1) return {};
    constexpr std::u16string_view measurePattern = u":0.###";
    found.isMeasure = text.substr(i).starts_with(measurePattern);
    if (found.isMeasure) i += measurePattern.size();
    if (i == text.size() || text[i] != u'}') return {};
    found.length = i + 1;
    return found;
}

// Texts print as they are, numbers by the pattern.
void appendArgument(std::u16string& out, StringFormatStream::Argument const& argument, bool isMeasure) {
    std::visit(
        [&](auto const& value) {
            if constexpr (std::is_convertible_v<decltype(value), std::u16string_view>)
                out += value;
            else if (isMeasure)
                append(out, Measure{static_cast<double>(value)});
            else
                append(out, value);
        },
        argument);
}

} // namespace

StringFormatStream::StringFormatStream(String format) : format(std::move(format)) {}

StringFormatStream& StringFormatStream::operator<<(String const& argument) {
    arguments.emplace_back(argument);
    return *this;
}

StringFormatStream& StringFormatStream::operator<<(int argument) {
    arguments.emplace_back(argument);
    return *this;
}

StringFormatStream& StringFormatStream::operator<<(float argument) {
    arguments.emplace_back(argument);
    return *this;
}

StringFormatStream& StringFormatStream::operator<<(double argument) {
    arguments.emplace_back(argument);
    return *this;
}

String StringFormatStream::getString() const {
    std::u16string out;
    for (std::u16string_view rest = format; !rest.empty();) {
        std::size_t const brace = std::min(rest.find(u'{'), rest.size());
        out += rest.substr(0, brace);
        rest.remove_prefix(brace);
        if (rest.empty()) break;
        Placeholder const placeholder = readPlaceholder(rest);
        if (placeholder.length == 0)
            out += rest.front();
        else if (placeholder.index < arguments.size())
            appendArgument(out, arguments[placeholder.index], placeholder.isMeasure);
        rest.remove_prefix(std::max<std::size_t>(placeholder.length, 1));
    }
    return String(std::move(out));
}

} // namespace Core
