// The size of a background image along one axis.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"
#include "xmlattr/measures/LengthOrPercent.h"

namespace Xml {

// How a background image is scaled, or that a measure says its size.
enum class XMLATTR_API BackgroundSizeType : std::int32_t {
    Cover = 0,
    Contain = 1,
    Stretch = 2,
    Auto = 3,
    LengthOrPercent = 4
};
template <> struct Keywords<BackgroundSizeType> {
    using enum BackgroundSizeType;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<BackgroundSizeType> rows[] = {
        {u"cover", Cover}, {u"contain", Contain}, {u"stretch", Stretch}, {u"fill", Stretch}, {u"auto", Auto}};
    static constexpr bool unknownThrows = true;
};

// One of the words of BackgroundSizeType, exact in case, or a LengthOrPercent. Prints the same, but
// for stretched ones. A failed parse changes nothing.
// Intended: comparing takes the measures alone, so that "cover" equals "contain".
class XMLATTR_API BackgroundSize : public LengthOrPercent {
public:
    constexpr BackgroundSize() = default;
    constexpr BackgroundSize(BackgroundSizeType newType) : type(newType) {}
    constexpr BackgroundSize(LengthOrPercent const& measure)
        : LengthOrPercent(measure), type(BackgroundSizeType::LengthOrPercent) {}

    constexpr BackgroundSizeType getType() const { return type; }

    // Reads the words alone; false for every other text, then `out` is untouched.
    static bool readStringBackgroundSize(BackgroundSize& out, Core::String const& text);

private:
    BackgroundSizeType type = BackgroundSizeType::Auto;
};

static_assert(sizeof(BackgroundSize) == 20);

template <> struct XMLATTR_API AttributeTraits<BackgroundSize> {
    static bool parse(BackgroundSize& value, std::u16string_view text);
    // Throws UnreacheableCodeException for an out-of-range type.
    static Core::String print(BackgroundSize const& value);
    static constexpr bool refusesComparison = true;
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
    static void parts(BackgroundSize const& value, Parts& out);
};

} // namespace Xml
