// Texts of the form name(argument).
#pragma once

#include "xmlattr/core/Format.h"

#include <optional>
#include <string_view>

namespace Xml {

// The name with which a call begins, its "(" included; without one, the whole text.
constexpr std::u16string_view openingOf(std::u16string_view text) {
    std::size_t const open = text.find(u'(');
    return open == std::u16string_view::npos ? text : text.substr(0, open + 1);
}

// What stands between `opening`, which ends in "(", and the first ")" after it, untrimmed. Nothing
// when the text begins otherwise or has no such ")". What follows the ")" does not matter.
inline std::optional<std::u16string_view> callArgument(std::u16string_view text, std::u16string_view opening) {
    if (!text.starts_with(opening)) return std::nullopt;
    text.remove_prefix(opening.size());
    std::size_t const close = text.find(u')');
    if (close == std::u16string_view::npos) return std::nullopt;
    return text.substr(0, close);
}

// The same for an argument that is an integer, whatever the name.
inline bool readArgument(std::u16string_view text, int& number) {
    auto const argument = callArgument(text, openingOf(text));
    return argument && Core::Format::parseInt(*argument, number);
}

inline void appendCall(std::u16string& out, std::u16string_view name, std::u16string_view argument) {
    out.append(name).append(u"(").append(argument).append(u")");
}

inline Core::String printCall(std::u16string_view name, std::u16string_view argument) {
    std::u16string out;
    out.reserve(name.size() + argument.size() + 2);
    appendCall(out, name, argument);
    return Core::String(std::move(out));
}

} // namespace Xml
