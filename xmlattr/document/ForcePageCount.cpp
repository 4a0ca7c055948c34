#include "xmlattr/document/ForcePageCount.h"

#include "xmlattr/document/Call.h"

namespace Xml {

namespace {

bool read(std::u16string_view text, ForcePageCount& out) {
    ForcePageCountType type{};
    if (!KeywordTraits<ForcePageCountType>::parse(type, openingOf(text))) return true;
    int count = -1;
    bool const isMultiple = type == ForcePageCountType::MultipleOf || type == ForcePageCountType::EndOnMultipleOf;
    if (isMultiple && !readArgument(text, count)) return false;
    out = ForcePageCount(type, count);
    return true;
}

} // namespace

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
bool ForcePageCount::parse(Core::String text, ForcePageCount& out) {
    return read(text, out);
}

bool AttributeTraits<ForcePageCount>::parse(ForcePageCount& value, std::u16string_view text) {
    ForcePageCount fresh;
    if (!read(text, fresh)) return false;
    value = fresh;
    return true;
}

void AttributeTraits<ForcePageCount>::words(Words& out) {
    out.addAll(Keywords<ForcePageCountType>::rows);
}

void AttributeTraits<ForcePageCount>::parts(ForcePageCount const& value, Parts& out) {
    switch (value.getType()) {
    case ForcePageCountType::Auto:
    case ForcePageCountType::Even:
    case ForcePageCountType::Odd:
    case ForcePageCountType::EndOnEven:
    case ForcePageCountType::EndOnOdd:
    case ForcePageCountType::NoForce:
        out.add(u"kind") << KeywordTraits<ForcePageCountType>::print(value.getType());
        break;
    case ForcePageCountType::MultipleOf: out.add(u"multiple") << value.getCount(); break;
    case ForcePageCountType::EndOnMultipleOf: out.add(u"end on multiple") << value.getCount(); break;
    }
}

} // namespace Xml
