// The only source that compiles the attribute of each value type.
#include "xmlattr/Instantiations.h"

#include "xmlattr/attributes/TXmlAttributeImpl.h"

namespace Xml {

#define XMLATTR_PUBLIC_VALUE(...) template class TXmlAttribute<__VA_ARGS__>;
#define XMLATTR_INTERNAL_VALUE(...) template class TXmlAttribute<__VA_ARGS__>;
#include "xmlattr/ValueTypes.inc"

namespace {

// What the types of the list add up to: a line that is missing, or a misspelt trait, changes a sum.
struct Sums {
    int types = 0, internal = 0, withoutPrinter = 0, refusing = 0;
    int enumerations = 0, internalEnumerations = 0, enumerationsWithoutPrinter = 0;

    template <class T> consteval void add(bool isInternal) {
        constexpr bool isEnumeration = KeywordEnumeration<T>;
        ++types;
        internal += isInternal;
        withoutPrinter += !Prints<T>;
        refusing += RefusesComparison<T>;
        enumerations += isEnumeration;
        internalEnumerations += isEnumeration && isInternal;
        enumerationsWithoutPrinter += isEnumeration && !Prints<T>;
    }

    bool operator==(Sums const&) const = default;
};

consteval Sums sumsOfTheList() {
    Sums sums;
#define XMLATTR_PUBLIC_VALUE(...) sums.add<__VA_ARGS__>(false);
#define XMLATTR_INTERNAL_VALUE(...) sums.add<__VA_ARGS__>(true);
#include "xmlattr/ValueTypes.inc"
    return sums;
}

static_assert(sumsOfTheList() == Sums{.types = 184,
                                      .internal = 20,
                                      .withoutPrinter = 76,
                                      .refusing = 10,
                                      .enumerations = 128,
                                      .internalEnumerations = 16,
                                      .enumerationsWithoutPrinter = 49});

} // namespace

} // namespace Xml
