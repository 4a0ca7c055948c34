// What the number of pages of a page sequence is brought to.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

#include <cstdint>

namespace Xml {

// The keywords, and the two calls.
enum class XMLATTR_API ForcePageCountType : std::int32_t {
    Auto = 0,
    Even = 1,
    Odd = 2,
    EndOnEven = 3,
    EndOnOdd = 4,
    NoForce = 5,
    MultipleOf = 6,
    EndOnMultipleOf = 7
};

template <> struct Keywords<ForcePageCountType> {
    using enum ForcePageCountType;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<ForcePageCountType> rows[] = {{u"auto", Auto},
                                                              {u"even", Even},
                                                              {u"odd", Odd},
                                                              {u"end-on-even", EndOnEven},
                                                              {u"end-on-odd", EndOnOdd},
                                                              {u"no-force", NoForce},
                                                              {u"multiple-of(", MultipleOf},
                                                              {u"end-on-multiple-of(", EndOnMultipleOf}};
};

// The keywords of force-page-count in XSL-FO 1.1 (exact case), and "multiple-of(" or
// "end-on-multiple-of(" an integer ")". There is no printer.
class XMLATTR_API ForcePageCount {
public:
    constexpr ForcePageCount() = default;
    constexpr ForcePageCount(ForcePageCountType newType, int newCount) : type(newType), count(newCount) {}

    constexpr ForcePageCountType getType() const { return type; }
    // -1 unless the type has a multiple.
    constexpr int getCount() const { return count; }

    constexpr bool operator==(ForcePageCount const&) const = default;

    // False for one of the two multiples without an integer and a ")" after it; then `out` is
    // untouched. Intended: every other unknown text is accepted, and leaves `out` as it was.
    static bool parse(Core::String text, ForcePageCount& out);

private:
    ForcePageCountType type = ForcePageCountType::Auto;
    int count = -1;
};

static_assert(sizeof(ForcePageCount) == 8);

template <> struct XMLATTR_API AttributeTraits<ForcePageCount> {
    // Intended: an unknown text gives "auto", whatever the value was.
    static bool parse(ForcePageCount& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{.forms = {u"multiple-of(NUMBER)", u"end-on-multiple-of(NUMBER)"},
                                          .examples = {u"multiple-of(4)", u"end-on-multiple-of(4)"},
                                          .readsAnyText = true};
    static void words(Words& out);
    static void parts(ForcePageCount const& value, Parts& out);
};

} // namespace Xml
