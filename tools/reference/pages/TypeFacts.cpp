#include "tools/reference/pages/TypeFacts.h"

#include "xmlattr/Instantiations.h"
#include "xmlattr/core/Exceptions.h"

#include <algorithm>
#include <cstdint>

namespace Reference {

using namespace Xml;

namespace {

template <class E> std::optional<std::string> printOf(std::int32_t number) {
    try {
        return TXmlAttribute<E>(static_cast<E>(number)).getValueAsString().toUtf8();
    } catch (Core::UnreacheableCodeException const&) {
        return std::nullopt;
    }
}

template <class E> std::vector<NumberPrint> unreadNumbersOf() {
    std::vector<NumberPrint> prints;
    if constexpr (detail::PrintsOtherWords<E>)
        for (KeywordRow<E> const& row : Keywords<E>::printRows)
            if (std::ranges::find(Keywords<E>::rows, row.value, &KeywordRow<E>::value) == std::end(Keywords<E>::rows))
                prints.push_back({static_cast<int>(row.value), *printOf<E>(static_cast<std::int32_t>(row.value))});
    return prints;
}

template <class T> TypeFacts factsOf(std::string_view name) {
    TypeFacts facts{name,
                    sizeof(T),
                    sizeof(TXmlAttribute<T>),
                    Prints<T>,
                    RefusesComparison<T>,
                    AttributeTraits<T>::describe.forms[0].empty()};
    if constexpr (KeywordEnumeration<T>) {
        facts.unreadNumbers = unreadNumbersOf<T>();
        facts.outOfRange = printOf<T>(-123456);
    }
    return facts;
}

} // namespace

std::span<TypeFacts const> typeFacts() {
#define XMLATTR_PUBLIC_VALUE(...) factsOf<__VA_ARGS__>(#__VA_ARGS__),
#define XMLATTR_INTERNAL_VALUE(...) XMLATTR_PUBLIC_VALUE(__VA_ARGS__)
    static std::vector<TypeFacts> const facts{
#include "xmlattr/ValueTypes.inc"
    };
    return facts;
}

} // namespace Reference
