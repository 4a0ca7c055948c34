// How SVG fits a view box into its viewport.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/core/WordTable.h"

#include <cstdint>

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// The bits of SVG 1.1's preserveAspectRatio: 1 none, 2 meet, 4 slice; 8, 16 and 32 align x at Min,
// Mid and Max, and 64, 128 and 256 y. It is "xMidYMid meet" to begin with.
class XMLATTR_API SPreserveAspectRatio {
public:
    constexpr SPreserveAspectRatio() = default;
    constexpr SPreserveAspectRatio(int newRatio) : ratio(newRatio) {}

    constexpr int getAspectRatio() const { return ratio; }

    constexpr bool operator==(SPreserveAspectRatio const&) const = default;

private:
    std::int32_t ratio = 16 | 128 | 2;
};

// Two words, exact in case: "none", after which nothing counts, or an alignment, then "meet" or
// "slice". Never refuses a text: an unknown alignment, such as "defer", is "xMidYMid"; no second word
// is "meet", and an unknown one is neither. What follows is ignored. There is no printer.
template <> struct XMLATTR_API AttributeTraits<SPreserveAspectRatio> {
    enum Bit { None = 1, Meet = 2, Slice = 4, XMin = 8, XMid = 16, XMax = 32, YMin = 64, YMid = 128, YMax = 256 };
    static constexpr Core::WordRow<int> rows[] = {{u"none", None},
                                                  {u"xMinYMin", XMin | YMin},
                                                  {u"xMidYMin", XMid | YMin},
                                                  {u"xMaxYMin", XMax | YMin},
                                                  {u"xMinYMid", XMin | YMid},
                                                  {u"xMidYMid", XMid | YMid},
                                                  {u"xMaxYMid", XMax | YMid},
                                                  {u"xMinYMax", XMin | YMax},
                                                  {u"xMidYMax", XMid | YMax},
                                                  {u"xMaxYMax", XMax | YMax}};
    static constexpr Core::WordRow<int> secondWords[] = {{u"meet", Meet}, {u"slice", Slice}};

    static bool parse(SPreserveAspectRatio& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{.forms = {u"none", u"an alignment such as xMidYMid, then meet or slice"},
                                          .examples = {u"xMinYMax slice", u"none"},
                                          .listsWords = false,
                                          .readsAnyText = true};
    static void words(Words& out);
    static void parts(SPreserveAspectRatio const& value, Parts& out);
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
