#include "selecting/Groups.h"

#include <algorithm>
#include <functional>

namespace Command {

void Groups::add(std::string const& file, Finding const& finding) {
    constexpr std::size_t mostPlaces = 3;
    auto const keyOf = [](Finding const& found) {
        // What is wrong with the name of an element has no other text.
        return Key(found.fault, found.attribute, found.fault == Fault::UnknownElement ? found.element : found.text);
    };
    auto at = known.find(keyOf(finding));
    if (at == known.end()) {
        groups.push_back({finding, 0, {}});
        at = known.emplace(keyOf(groups.back().finding), &groups.back()).first;
    }
    FindingGroup& group = *at->second;
    ++group.count;
    if (group.places.size() < mostPlaces) group.places.push_back({file, finding.place});
}

std::vector<FindingGroup const*> Groups::byCount() const {
    std::vector<FindingGroup const*> sorted;
    for (FindingGroup const& group : groups) sorted.push_back(&group);
    std::ranges::stable_sort(sorted, std::greater(), &FindingGroup::count);
    return sorted;
}

} // namespace Command
