#include "xmlattr/measures/BorderWidth.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

namespace {

constexpr NamedMeasure<Length> words[] = {
    {u"thin", {1, Length::Pt}},
    {u"medium", {3, Length::Pt}},
    {u"thick", {5, Length::Pt}},
};

} // namespace

bool AttributeTraits<BorderWidth>::parse(BorderWidth& value, std::u16string_view text) {
    return readAsWord(value, words, text) || readAs<Length>(value, text);
}

Core::String AttributeTraits<BorderWidth>::print(BorderWidth const& value) {
    if (auto const* const row = findMeasure<Length>(words, value)) return row->word;
    return Length::getValueAsString(value);
}

} // namespace Xml
