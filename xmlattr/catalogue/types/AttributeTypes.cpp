#include "xmlattr/catalogue/types/AttributeTypes.h"

#include "xmlattr/catalogue/types/Describe.h"

#include "xmlattr/Values.h"
#include "xmlattr/attributes/TXmlAttribute.h"
#include "xmlattr/keywords/KeywordTable.h"

namespace Xml {

namespace {

template <class T> bool acceptsText(std::u16string_view text) {
    T value{};
    return AttributeTraits<T>::parse(value, text);
}

template <class T> Shown showText(Core::String const& text, Core::String const* other) {
    Shown shown;
    TXmlAttribute<T> attribute;
    shown.accepted = attribute.parseValue(text);
    if (!shown.accepted) return shown;
    describe(shown, &attribute.getValue());
    shown.printed = attribute.getValueAsString();
    if (other) shown.equal = attribute.isEqual(*other);
    return shown;
}

template <class T> std::vector<std::u16string_view> keywordsOf() {
    std::vector<std::u16string_view> words;
    if constexpr (KeywordEnumeration<T>)
        for (auto const& row : Keywords<T>::rows) words.push_back(row.word);
    return words;
}

template <class T> constexpr AttributeType typeOf(std::string_view name, bool isPublic) {
    return {name, isPublic, KeywordEnumeration<T>, acceptsText<T>, showText<T>, keywordsOf<T>};
}

} // namespace

std::span<AttributeType const> attributeTypes() {
    using namespace Xml;
    static constexpr AttributeType types[] = {
#define XMLATTR_PUBLIC_VALUE(...) typeOf<__VA_ARGS__>(#__VA_ARGS__, true),
#define XMLATTR_INTERNAL_VALUE(...) typeOf<__VA_ARGS__>(#__VA_ARGS__, false),
#include "xmlattr/ValueTypes.inc"
    };
    return types;
}

AttributeType const* findAttributeType(std::string_view name) {
    for (AttributeType const& type : attributeTypes())
        if (type.name == name) return &type;
    return nullptr;
}

} // namespace Xml
