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

void AttributeTraits<TPRule>::parts(TPRule const& value, Parts& out) {
    if (value.getType() == TPRuleType::FindKeyword) out.add(u"keyword") << value.getKeyword();
}

} // namespace Xml
