#include "xmlattr/document/DisplayCondition.h"

#include "xmlattr/core/Text.h"
#include "xmlattr/document/Call.h"

#include <algorithm>
#include <set>
#include <utility>

namespace Xml {

namespace {

using Operator = DisplayCondition::Operator;

using Operators = Core::WordTable<AttributeTraits<DisplayCondition>::rows>;

// Appends the condition of one segment; false when it lacks a parenthesis. Intended: the segment
// need only begin with an operator ("matches(x)"), and without one it means is-after.
bool appendSegment(DisplayCondition& value, std::u16string_view segment) {
    segment = Core::trim(segment);
    std::size_t const open = segment.find(u'('), close = segment.find(u')');
    if (open == std::u16string_view::npos || close == std::u16string_view::npos) return false;
    if (close <= open + 1) return true;
    DisplayCondition::Condition condition;
    condition.op = Operators::findStart(segment).value_or(Operator::IsAfter);
    condition.argument = Core::trim(segment.substr(open + 1, close - open - 1));
    value.append(std::move(condition));
    return true;
}

} // namespace

bool DisplayCondition::operator==(DisplayCondition const& other) const {
    // Sorted first: a document may make both lists long.
    std::set<std::pair<Operator, std::u16string_view>> present;
    for (Condition const& condition : other.conditions) present.emplace(condition.op, condition.argument);
    return std::all_of(conditions.begin(), conditions.end(), [&](Condition const& condition) {
        return present.contains({condition.op, condition.argument});
    });
}

bool AttributeTraits<DisplayCondition>::parse(DisplayCondition& value, std::u16string_view text) {
    constexpr std::u16string_view separator = u"and";
    DisplayCondition added; // a list of its own, since the text may be an argument in the other one
    bool isRead = true;
    while (isRead && !text.empty()) {
        // Intended: the bare letters separate, inside an argument too: "match(brand)" is refused.
        std::size_t const end = std::min(text.find(separator), text.size());
        isRead = appendSegment(added, text.substr(0, end));
        text.remove_prefix(std::min(end + separator.size(), text.size()));
    }
    for (DisplayCondition::Condition const& condition : added.getConditions()) value.append(condition);
    return isRead;
}

Core::String AttributeTraits<DisplayCondition>::print(DisplayCondition const& value) {
    std::u16string out;
    for (DisplayCondition::Condition const& condition : value.getConditions()) {
        if (!out.empty()) out += u" and ";
        if (std::size_t const row = Operators::findValue(condition.op); row != Core::noWord)
            out += Operators::word(row);
        appendCall(out, {}, condition.argument);
    }
    return Core::String(std::move(out));
}

void AttributeTraits<DisplayCondition>::parts(DisplayCondition const& value, Parts& out) {
    out.add(u"conditions") << static_cast<int>(value.getConditions().size());
}

} // namespace Xml
