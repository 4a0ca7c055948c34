// The functions of XSL 1.1, section 5.10.
#pragma once

#include "xmlattr/core/WordTable.h"

#include <cstdint>

namespace Xml {

struct ExpressionFunction {
    enum Result : std::uint8_t {
        Argument, // one of the arguments, which are numeric
        Number,   // of one
        Length,
        Share, // of the width that is left for the columns of a table; of a number
        Color,
        Font, // a property of a font: the one at hand, or the one that a second argument names
        Copy  // the value of another property, whatever its kind
    };

    int least, most; // arguments
    Result result;
};

inline constexpr Core::WordRow<ExpressionFunction> expressionFunctions[] = {
    {u"abs", {1, 1, ExpressionFunction::Argument}},
    {u"body-start", {0, 0, ExpressionFunction::Length}},
    {u"ceiling", {1, 1, ExpressionFunction::Number}},
    {u"floor", {1, 1, ExpressionFunction::Number}},
    {u"from-nearest-specified-value", {0, 1, ExpressionFunction::Copy}},
    {u"from-page-master-region", {0, 1, ExpressionFunction::Copy}},
    {u"from-parent", {0, 1, ExpressionFunction::Copy}},
    {u"from-table-column", {0, 1, ExpressionFunction::Copy}},
    {u"inherited-property-value", {0, 1, ExpressionFunction::Copy}},
    {u"label-end", {0, 0, ExpressionFunction::Length}},
    {u"max", {2, 2, ExpressionFunction::Argument}},
    {u"merge-property-values", {0, 1, ExpressionFunction::Copy}},
    {u"min", {2, 2, ExpressionFunction::Argument}},
    {u"proportional-column-width", {1, 1, ExpressionFunction::Share}},
    {u"rgb", {3, 3, ExpressionFunction::Color}},
    {u"rgb-icc", {4, 99, ExpressionFunction::Color}},
    {u"rgb-named-color", {5, 5, ExpressionFunction::Color}},
    {u"round", {1, 1, ExpressionFunction::Number}},
    {u"system-color", {1, 1, ExpressionFunction::Color}},
    {u"system-font", {1, 2, ExpressionFunction::Font}},
};

} // namespace Xml
