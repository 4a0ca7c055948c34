// How many data points a chart shows at most.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"

#include <cstdint>

namespace Xml {

// Whether there is a limit.
enum class XMLATTR_API MaxDataPointsType : std::int32_t { All = 0, Count = 1 };

// "all", in any case and with white space around it, or an integer of any sign.
class XMLATTR_API MaxDataPoints {
public:
    constexpr MaxDataPoints() = default;
    constexpr MaxDataPoints(MaxDataPointsType newType) : type(newType) {}
    constexpr MaxDataPoints(int newCount) : type(MaxDataPointsType::Count), count(newCount) {}

    constexpr MaxDataPointsType getType() const { return type; }
    // The count; 0 when the type is All.
    constexpr int getValue() const { return count; }

    constexpr bool operator==(MaxDataPoints const&) const = default;

private:
    MaxDataPointsType type = MaxDataPointsType::All;
    int count = 0;
};

static_assert(sizeof(MaxDataPoints) == 8);

template <> struct XMLATTR_API AttributeTraits<MaxDataPoints> {
    static bool parse(MaxDataPoints& value, std::u16string_view text);
    // Empty for an out-of-range type.
    static Core::String print(MaxDataPoints const& value);
    static constexpr Description describe{{u"a whole number"}, {u"12"}};
    static void words(Words& out);
};

} // namespace Xml
