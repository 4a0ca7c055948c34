#include "xmlattr/document/InitialPageNumber.h"

#include "xmlattr/core/Exceptions.h"
#include "xmlattr/document/Call.h"

#include <algorithm>

namespace Xml {

namespace {

constexpr std::u16string_view automatic = u"auto";

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
    InitialPageNumberType type{};
    int multiple = 0;
    if (!KeywordTraits<InitialPageNumberType>::parse(type, openingOf(text)))
        value = InitialPageNumber(readPositive(text));
    else if (type != InitialPageNumberType::MultipleOf)
        value = InitialPageNumber(type);
    else if (readArgument(text, multiple))
        value = InitialPageNumber(type, multiple);
    else
        return false;
    return true;
}

bool AttributeTraits<InitialSheetNumber>::parse(InitialSheetNumber& value, std::u16string_view text) {
    value = text == automatic ? InitialSheetNumber() : InitialSheetNumber(readPositive(text));
    return true;
}

void AttributeTraits<InitialPageNumber>::words(Words& out) {
    out.addAll(Keywords<InitialPageNumberType>::rows);
}

void AttributeTraits<InitialPageNumber>::parts(InitialPageNumber const& value, Parts& out) {
    switch (value.getType()) {
    case InitialPageNumberType::Auto:
    case InitialPageNumberType::AutoOdd:
    case InitialPageNumberType::AutoEven:
        out.add(u"kind") << KeywordTraits<InitialPageNumberType>::print(value.getType());
        break;
    case InitialPageNumberType::Number: out.add(u"page") << value.getNumber(); break;
    case InitialPageNumberType::MultipleOf: out.add(u"multiple") << value.getMultiple(); break;
    }
}

void AttributeTraits<InitialSheetNumber>::words(Words& out) {
    out.add(automatic);
}

void AttributeTraits<InitialSheetNumber>::parts(InitialSheetNumber const& value, Parts& out) {
    switch (value.getType()) {
    case InitialSheetNumberType::Auto: out.add(u"sheet") << automatic; break;
    case InitialSheetNumberType::Number: out.add(u"sheet") << value.getNumber(); break;
    }
}

} // namespace Xml
