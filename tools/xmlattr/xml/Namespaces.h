// The namespaces that are in scope at the tag at hand.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Command {

constexpr std::string_view xmlNamespace = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view xlinkNamespace = "http://www.w3.org/1999/xlink";
constexpr std::string_view xincludeNamespace = "http://www.w3.org/2001/XInclude";
constexpr std::string_view xsltNamespace = "http://www.w3.org/1999/XSL/Transform";

class Namespaces {
public:
    // An empty prefix is the default namespace.
    void begin(std::string_view prefix, std::string_view space) {
        byPrefix[std::string(prefix)].emplace_back(space);
        ++declarations[std::string(space)];
        if (space == xsltNamespace) ++stylesheets;
    }

    void end(std::string_view prefix) {
        auto const found = byPrefix.find(prefix);
        if (found == byPrefix.end()) return;
        std::vector<std::string>& spaces = found->second;
        if (spaces.back() == xsltNamespace) --stylesheets;
        if (auto const count = declarations.find(spaces.back()); --count->second == 0) declarations.erase(count);
        spaces.pop_back();
        if (spaces.empty()) byPrefix.erase(found);
    }

    // The namespace of a prefix; empty when it is not declared.
    std::string_view of(std::string_view prefix) const {
        auto const found = byPrefix.find(prefix);
        return found == byPrefix.end() ? std::string_view() : found->second.back();
    }

    // Whether some prefix is declared for that of XSLT, which is asked at every element.
    bool hasXslt() const { return stylesheets > 0; }
    // The same for any namespace.
    bool has(std::string_view space) const { return declarations.contains(space); }

private:
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    template <class Value> using Map = std::unordered_map<std::string, Value, Hash, std::equal_to<>>;

    Map<std::vector<std::string>> byPrefix;
    Map<int> declarations; // of each namespace
    int stylesheets = 0;   // those of XSLT
};

} // namespace Command
