#include "xmlattr/document/TPRule.h"

#include "xmlattr/document/Call.h"

namespace Xml {

bool TPRule::parseRule(TPRule& value, Core::String const& text) {
    return AttributeTraits<TPRule>::parse(value, text);
}

bool AttributeTraits<TPRule>::parse(TPRule& value, std::u16string_view text) {
    auto const keyword = callArgument(text, u"FIND_KEYWORD(");
    value.type = keyword ? TPRuleType::FindKeyword : TPRuleType::None;
    if (keyword) value.keyword = *keyword;
    return keyword.has_value();
}

} // namespace Xml
