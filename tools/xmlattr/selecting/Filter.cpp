#include "selecting/Filter.h"

#include "text/Text.h"

#include <algorithm>
#include <vector>

namespace Command {

std::optional<std::string> Filter::Names::add(std::string_view name) {
    constexpr std::string_view attribute = "attribute:", element = "element:";
    auto const keep = [&](Set& names, std::string_view prefix) -> std::optional<std::string> {
        if (name.size() == prefix.size()) return "no name follows " + inQuotes(prefix);
        names.emplace(name.substr(prefix.size()));
        return std::nullopt;
    };
    if (name.starts_with(attribute)) return keep(attributes, attribute);
    if (name.starts_with(element)) return keep(elements, element);
    if (std::ranges::any_of(faultKinds(), [&](FaultKind const& kind) { return kind.id == name; })) return keep(ids, "");
    std::vector<std::string> known;
    for (FaultKind const& kind : faultKinds()) known.emplace_back(kind.id);
    known.insert(known.end(), {"attribute:NAME", "element:NAME"});
    return inQuotes(printable(name)) + " is not " + joinWith(known, "or");
}

bool Filter::Names::has(Finding const& finding) const {
    // The part after a prefix; without one the whole, since no position plus one is the first.
    std::string_view const local = std::string_view(finding.element).substr(finding.element.find(':') + 1);
    return ids.contains(kindOf(finding.fault).id) || attributes.contains(finding.attribute) ||
           elements.contains(finding.element) || elements.contains(local);
}

} // namespace Command
