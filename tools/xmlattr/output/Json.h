// JSON, as the command writes it: keys in the order in which they are given.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace Command {

using Json = nlohmann::ordered_json;

// What is no UTF-8, such as the name of a file, becomes U+FFFD.
inline std::string toText(Json const& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

inline std::string toLine(Json const& value) {
    return toText(value) + "\n";
}

} // namespace Command
