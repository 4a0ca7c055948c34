#include "xmlattr/document/InitialPageNumber.h"

#include "xmlattr/core/Exceptions.h"
#include "xmlattr/document/Call.h"
#include "xmlattr/keywords/KeywordTable.h"

#include <algorithm>

namespace Xml {

template <> struct Keywords<InitialPageNumberType> {
    using enum InitialPageNumberType;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<InitialPageNumberType> rows[] = {
        {u"auto", Auto}, {u"auto-odd", AutoOdd}, {u"auto-even", AutoEven}};
};

namespace {

int readPositive(std::u16string_view text) {
    return std::max(Core::Format::parseInt(text), 1);
}

} // namespace

InitialPageNumber::InitialPageNumber(InitialPageNumberType type, int multiple) : type(type), multiple(multiple) {
    if (type != InitialPageNumberType::MultipleOf) throw Core::UnreacheableCodeException("MiscAttributes", __LINE__);
}

bool InitialPageNumber::parse(Core::String const& text, InitialPageNumber& out) {
    return AttributeTraits<InitialPageNumber>::parse(out, text);
}

bool AttributeTraits<InitialPageNumber>::parse(InitialPageNumber& value, std::u16string_view text) {
    constexpr std::u16string_view multipleOf = u"multiple-of(";
    if (text.starts_with(multipleOf)) {
        int multiple = 0;
        if (!readCall(text, multipleOf, multiple)) return false;
        value = InitialPageNumber(InitialPageNumberType::MultipleOf, multiple);
        return true;
    }
    InitialPageNumberType type{};
    bool const isKeyword = KeywordTraits<InitialPageNumberType>::parse(type, text);
    value = isKeyword ? InitialPageNumber(type) : InitialPageNumber(readPositive(text));
    return true;
}

bool AttributeTraits<InitialSheetNumber>::parse(InitialSheetNumber& value, std::u16string_view text) {
    value = text == u"auto" ? InitialSheetNumber() : InitialSheetNumber(readPositive(text));
    return true;
}

} // namespace Xml
