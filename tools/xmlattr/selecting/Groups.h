// Findings that say the same thing, put together.
#pragma once

#include "output/Report.h"

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace Command {

// Findings are the same when id, attribute and text are.
class Groups {
public:
    void add(std::string const& file, Finding const& finding);
    // The most frequent first; of equally frequent ones that which was met first.
    std::vector<FindingGroup const*> byCount() const;

private:
    using Key = std::tuple<Fault, std::string_view, std::string_view>; // into the group

    std::map<Key, FindingGroup*> known;
    std::deque<FindingGroup> groups; // in the order in which they were met
};

} // namespace Command
