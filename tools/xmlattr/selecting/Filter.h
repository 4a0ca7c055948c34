// Which findings a user wants to see.
#pragma once

#include "checking/Finding.h"

#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace Command {

// Each name is that of an id as messages show it ("misread"), of an attribute ("attribute:font-size") or of an element
// ("element:text", which is also svg:text; "element:fo:block" is that alone). Names are exact.
class Filter {
public:
    // Leaves out what has the name, or lets pass only what has one of the names. Says what is wrong with a name, which
    // is not taken then.
    [[nodiscard]] std::optional<std::string> ignore(std::string_view name) { return ignored.add(name); }
    [[nodiscard]] std::optional<std::string> only(std::string_view name) { return wanted.add(name); }

    bool isEmpty() const { return ignored.isEmpty() && wanted.isEmpty(); }
    bool passes(Finding const& finding) const {
        return !ignored.has(finding) && (wanted.isEmpty() || wanted.has(finding));
    }

private:
    class Names {
    public:
        std::optional<std::string> add(std::string_view name);
        bool isEmpty() const { return ids.empty() && attributes.empty() && elements.empty(); }
        bool has(Finding const& finding) const;

    private:
        using Set = std::set<std::string, std::less<>>;
        Set ids, attributes, elements;
    };

    Names ignored, wanted;
};

} // namespace Command
