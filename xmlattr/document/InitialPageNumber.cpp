#include "xmlattr/document/InitialPageNumber.h"

#include "xmlattr/core/Exceptions.h"
#include "xmlattr/document/Call.h"

#include <algorithm>

namespace Xml {

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
    value = text == u"auto" ? InitialSheetNumber() : InitialSheetNumber(readPositive(text));
    return true;
}

} // namespace Xml
