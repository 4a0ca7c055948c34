#include "ValueTypes.h"

#include "Describe.h"

#include "xmlattr/Values.h"
#include "xmlattr/attributes/TXmlAttribute.h"
#include "xmlattr/keywords/KeywordTable.h"

namespace Command {

namespace {

template <class T> bool acceptsText(std::u16string_view text) {
    T value{};
    return Xml::AttributeTraits<T>::parse(value, text);
}

template <class T> Shown showText(Core::String const& text, Core::String const* other) {
    Shown shown;
    Xml::TXmlAttribute<T> attribute;
    shown.accepted = attribute.parseValue(text);
    if (!shown.accepted) return shown;
    describe(shown, &attribute.getValue());
    shown.printed = attribute.getValueAsString();
    if (other) shown.equal = attribute.isEqual(*other);
    return shown;
}

template <class T> std::vector<std::u16string_view> keywordsOf() {
    std::vector<std::u16string_view> words;
    if constexpr (Xml::KeywordEnumeration<T>)
        for (auto const& row : Xml::Keywords<T>::rows) words.push_back(row.word);
    return words;
}

template <class T> constexpr ValueType typeOf(std::string_view name, bool isPublic) {
    return {name, isPublic, Xml::KeywordEnumeration<T>, acceptsText<T>, showText<T>, keywordsOf<T>};
}

} // namespace

std::span<ValueType const> valueTypes() {
    using namespace Xml;
    static constexpr ValueType types[] = {
#define XMLATTR_PUBLIC_VALUE(...) typeOf<__VA_ARGS__>(#__VA_ARGS__, true),
#define XMLATTR_INTERNAL_VALUE(...) typeOf<__VA_ARGS__>(#__VA_ARGS__, false),
#include "xmlattr/ValueTypes.inc"
    };
    return types;
}

ValueType const* findValueType(std::string_view name) {
    for (ValueType const& type : valueTypes())
        if (type.name == name) return &type;
    return nullptr;
}

} // namespace Command
