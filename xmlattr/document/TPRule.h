// A rule of the text processing: which keyword to look for.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"

#include <cstdint>

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// The rule, or that there is none.
enum class XMLATTR_API TPRuleType : std::int32_t { FindKeyword = 0, None = 1 };

// "FIND_KEYWORD(" a keyword ")", exact in case; the keyword is taken untrimmed, and what follows the
// first ")" does not matter. There is no printer.
class XMLATTR_API TPRule {
public:
    TPRule() = default;

    TPRuleType getType() const { return type; }
    Core::String const& getKeyword() const { return keyword; }

    // Rules of the type None are equal whatever keyword is left in them.
    bool operator==(TPRule const& other) const {
        return type == other.type && (type != TPRuleType::FindKeyword || keyword == other.keyword);
    }

    // Intended: a text that is refused makes the type None and leaves the keyword.
    static bool parseRule(TPRule& value, Core::String const& text);

private:
    friend struct AttributeTraits<TPRule>;

    TPRuleType type = TPRuleType::None;
    Core::String keyword;
};

template <> struct XMLATTR_API AttributeTraits<TPRule> {
    static bool parse(TPRule& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{{u"FIND_KEYWORD(TEXT)"}, {u"FIND_KEYWORD(x)"}};
    static void parts(TPRule const& value, Parts& out);
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
