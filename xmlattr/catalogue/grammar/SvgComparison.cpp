#include "xmlattr/catalogue/grammar/SvgComparison.h"

#include "xmlattr/catalogue/grammar/SvgUnits.h"
#include "xmlattr/core/Format.h"

#include <string>

namespace Xml {

std::string heldText(double held) {
    return Core::Format::toShortest(held).toUtf8();
}

std::string heldText(SLength const& held) {
    if (held.getUnit() == SLength::Percent) return heldText(double{held.getSize()} * 100) + '%';
    std::string out = Core::Format::toShortest(held.getSize()).toUtf8();
    for (SvgUnit const& unit : svgUnits)
        if (unit.unit == held.getUnit() && unit.unit != SLength::UserUnit)
            out.append(unit.word.begin(), unit.word.end());
    return out;
}

} // namespace Xml
