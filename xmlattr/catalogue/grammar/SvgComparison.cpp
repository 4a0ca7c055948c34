#include "xmlattr/catalogue/grammar/SvgComparison.h"

#include "xmlattr/core/Format.h"
#include "xmlattr/measures/Units.h"

#include <string>

namespace Xml {

std::string heldText(double held) {
    return Core::Format::toShortest(held).toUtf8();
}

std::string heldText(SLength const& held) {
    if (held.getUnit() == SLength::Percent) return heldText(double{held.getSize()} * 100) + '%';
    std::string out = Core::Format::toShortest(held.getSize()).toUtf8();
    if (held.getUnit() == SLength::UserUnit) return out;
    std::u16string_view const unit = Units::word(rowOfUnit(held.getUnit()));
    return out.append(unit.begin(), unit.end());
}

} // namespace Xml
