// The kinds of values that a variant holds.
#pragma once

#include "xmlattr/core/Export.h"

#include <cstdint>

namespace Core {

// A value of one of several kinds; here only the kinds matter.
class XMLATTR_API Variant {
public:
    // The numbers are shared with the data sources that fill variants.
    enum class VariantType : std::int32_t {
        NullValue = 0,
        BoolValue = 1,
        ByteValue = 2,
        ShortValue = 3,
        IntegerValue = 4,
        LongValue = 5,
        UShortValue = 6,
        UIntValue = 7,
        ULongValue = 8,
        FloatValue = 9,
        DoubleValue = 10,
        StringValue = 11,
        DateTimeValue = 12,
        DateTimeExValue = 13,
        ByteArrayValue = 14
    };
};

} // namespace Core
