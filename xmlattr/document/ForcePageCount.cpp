#include "xmlattr/document/ForcePageCount.h"

#include "xmlattr/document/Call.h"
#include "xmlattr/keywords/KeywordTable.h"

namespace Xml {

template <> struct Keywords<ForcePageCountType> {
    using enum ForcePageCountType;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<ForcePageCountType> rows[] = {
        {u"auto", Auto},           {u"even", Even},       {u"odd", Odd}, {u"end-on-even", EndOnEven},
        {u"end-on-odd", EndOnOdd}, {u"no-force", NoForce}};
};

namespace {

struct MultipleRow {
    char16_t opening[20];
    ForcePageCountType type;
};

constexpr MultipleRow multiples[] = {{u"multiple-of(", ForcePageCountType::MultipleOf},
                                     {u"end-on-multiple-of(", ForcePageCountType::EndOnMultipleOf}};

bool read(std::u16string_view text, ForcePageCount& out) {
    for (auto const& [opening, type] : multiples) {
        if (!text.starts_with(opening)) continue;
        int count = 0;
        if (!readCall(text, opening, count)) return false;
        out = ForcePageCount(type, count);
        return true;
    }
    ForcePageCountType type{};
    if (KeywordTraits<ForcePageCountType>::parse(type, text)) out = ForcePageCount(type, -1);
    return true;
}

} // namespace

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
bool ForcePageCount::parse(Core::String text, ForcePageCount& out) {
    return read(text, out);
}

bool AttributeTraits<ForcePageCount>::parse(ForcePageCount& value, std::u16string_view text) {
    ForcePageCount fresh;
    if (!read(text, fresh)) return false;
    value = fresh;
    return true;
}

} // namespace Xml
