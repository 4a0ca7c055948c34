#include "xmlattr/document/AxisUnits.h"

#include "xmlattr/core/Format.h"
#include "xmlattr/keywords/KeywordTable.h"

namespace Xml {

template <> struct Keywords<AxisUnits::Type> {
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AxisUnits::Type> rows[] = {{u"auto", AxisUnits::Auto},
                                                           {u"days", AxisUnits::Days},
                                                           {u"months", AxisUnits::Months},
                                                           {u"years", AxisUnits::Years}};
};

bool AttributeTraits<AxisUnits>::parse(AxisUnits& value, std::u16string_view text) {
    AxisUnits::Type type{};
    if (KeywordTraits<AxisUnits::Type>::parse(type, text)) {
        value = AxisUnits(type);
        return true;
    }
    float number = 0;
    if (!Core::Format::parseFloat(text, number) || number == 0) return false;
    value = AxisUnits(number);
    return true;
}

} // namespace Xml
