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

} // namespace Xml
