#include "xmlattr/measures/PageDimension.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool PageDimension::readStringPageDimension(PageDimension& out, Core::String const& text) {
    return readAs<PageDimensionType>(out, text);
}

bool AttributeTraits<PageDimension>::parse(PageDimension& value, std::u16string_view text) {
    return readAs<PageDimensionType>(value, text) || readAs<Length>(value, text);
}

void AttributeTraits<PageDimension>::words(Words& out) {
    out.addAll(Keywords<PageDimensionType>::rows);
}

void AttributeTraits<PageDimension>::parts(PageDimension const& value, Parts& out) {
    if (value.getType() == PageDimensionType::Length)
        AttributeTraits<Length>::parts(value.getLength(), out);
    else
        out.add(u"kind") << AttributeTraits<PageDimensionType>::print(value.getType());
}

} // namespace Xml
