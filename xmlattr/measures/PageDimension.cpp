#include "xmlattr/measures/PageDimension.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool PageDimension::readStringPageDimension(PageDimension& out, Core::String const& text) {
    return readAs<PageDimensionType>(out, text);
}

bool AttributeTraits<PageDimension>::parse(PageDimension& value, std::u16string_view text) {
    return readAs<PageDimensionType>(value, text) || readAs<Length>(value, text);
}

} // namespace Xml
