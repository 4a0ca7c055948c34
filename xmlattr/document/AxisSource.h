// Where the data of a chart axis comes from.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/core/WordTable.h"

namespace Xml {

// The name of a data field, or one inside of a function that groups dates: "year(OrderDate)".
class XMLATTR_API AxisSource {
public:
    AxisSource() = default;
    // NOLINTNEXTLINE(modernize-pass-by-value): the signature is fixed
    AxisSource(Core::String const& newName, Core::String const& newFn) : name(newName), fn(newFn) {}

    Core::String getName() const { return name; }
    // Empty when there is no function.
    Core::String getFn() const { return fn; }

    bool operator==(AxisSource const&) const = default;

    // Whether the text begins with the name of a grouping function, in any case. Intended: the name
    // may go on, so that "years(x)" and "monthly(x)" have one too.
    static bool hasFn(Core::String const& text);

private:
    Core::String name, fn;
};

template <> struct XMLATTR_API AttributeTraits<AxisSource> {
    // "year" also begins "year-month" and "year-quarter".
    static constexpr Core::WordRow<> rows[] = {{u"year"},      {u"quarter"},   {u"week"},      {u"month"},
                                               {u"dayofweek"}, {u"dayofyear"}, {u"dayofmonth"}};
    static constexpr Core::Case rule = Core::Case::Any;
    using Functions = Core::WordTable<rows, rule>;

    // Every text is accepted. One with a function and both parentheses is trimmed around the two
    // parts; every other is a name as it stands, "sum(x)" included.
    static bool parse(AxisSource& value, std::u16string_view text);
    static Core::String print(AxisSource const& value);
    static constexpr Description describe{
        .forms = {u"a field", u"a field inside a function that groups dates, as in year(FIELD)"},
        .examples = {u"OrderDate", u"year( date )", u"quarter(date)"},
        .readsAnyText = true};
};

} // namespace Xml
