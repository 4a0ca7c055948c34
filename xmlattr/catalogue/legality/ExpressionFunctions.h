// The functions of XSL 1.1, section 5.10.
#pragma once

#include "xmlattr/core/WordTable.h"

namespace Xml {

struct ExpressionFunction {
    int least, most;          // arguments
    bool copiesValue = false; // from another property, whatever its kind
};

inline constexpr Core::WordRow<ExpressionFunction> expressionFunctions[] = {
    {u"abs", {1, 1}},
    {u"body-start", {0, 0}},
    {u"ceiling", {1, 1}},
    {u"floor", {1, 1}},
    {u"from-nearest-specified-value", {0, 1, true}},
    {u"from-page-master-region", {0, 1, true}},
    {u"from-parent", {0, 1, true}},
    {u"from-table-column", {0, 1, true}},
    {u"inherited-property-value", {0, 1, true}},
    {u"label-end", {0, 0}},
    {u"max", {2, 2}},
    {u"merge-property-values", {0, 1, true}},
    {u"min", {2, 2}},
    {u"proportional-column-width", {1, 1}},
    {u"rgb", {3, 3}},
    {u"rgb-icc", {4, 99}},
    {u"rgb-named-color", {5, 5}},
    {u"round", {1, 1}},
    {u"system-color", {1, 1}},
    {u"system-font", {1, 2}},
};

} // namespace Xml
