// Under which conditions an element is shown.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/core/WordTable.h"

#include <cstdint>
#include <utility>

namespace Xml {

// A list of conditions joined by "and": "is-after(", "is-before(" or "match(", an argument, ")",
// exact in case. White space around a condition and around its argument is dropped.
class XMLATTR_API DisplayCondition {
public:
    // How data is compared with the argument.
    enum class Operator : std::int32_t { IsAfter = 0, IsBefore = 1, Match = 2 };

    // One operator and its argument, which is kept as text.
    struct Condition {
        Operator op = Operator::IsAfter;
        Core::String argument;
    };

    Core::Vector<Condition> const& getConditions() const { return conditions; }
    // Adds a condition that must hold too.
    void append(Condition condition) { conditions.push_back(std::move(condition)); }

    // Intended: a test of containment. Each condition of this list must stand in the other one,
    // whatever the order and whatever else the other holds.
    bool operator==(DisplayCondition const& other) const;

private:
    Core::Vector<Condition> conditions;
};

template <> struct XMLATTR_API AttributeTraits<DisplayCondition> {
    static constexpr Core::WordRow<DisplayCondition::Operator> rows[] = {
        {u"is-after", DisplayCondition::Operator::IsAfter},
        {u"is-before", DisplayCondition::Operator::IsBefore},
        {u"match", DisplayCondition::Operator::Match}};

    // Intended: appends to the list, and a text that is refused has appended the conditions before
    // the bad one. The empty text adds nothing, and neither does a condition with empty parentheses.
    static bool parse(DisplayCondition& value, std::u16string_view text);
    // The conditions with " and " between them.
    static Core::String print(DisplayCondition const& value);
    static constexpr Description describe{{u"is-after(TEXT), is-before(TEXT) and match(TEXT) joined by \"and\""},
                                          {u"is-after(a) and match( b )", u"is-before(c)"}};
    static void parts(DisplayCondition const& value, Parts& out);
};

} // namespace Xml
