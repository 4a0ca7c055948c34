// The bodies of the attribute template. The source of the instantiations includes them, and so does a program that has
// attributes of value types of its own.
#pragma once

#include "xmlattr/attributes/TXmlAttribute.h"

namespace Xml {

template <class T> bool TXmlAttribute<T>::parseValue(Core::String const& text) {
    static_assert(saysWhatItReads<T>(),
                  "AttributeTraits<T> needs a description beside T: a line that says what the type reads, such as "
                  "static constexpr Description describe{{u\"a length\"}};");
    return AttributeTraits<T>::parse(stored.value, text);
}

template <class T> void TXmlAttribute<T>::copyFrom(XmlAttribute const& other) {
    stored.value = static_cast<TXmlAttribute const&>(other).stored.value;
}

template <class T> Core::String TXmlAttribute<T>::getValueAsString() const {
    static_assert(Prints<T> != PrintsEmpty<T>,
                  "AttributeTraits<T> needs either static Core::String print(T const&) or, for a type without a "
                  "printer, static constexpr bool printsEmpty = true;");
    if constexpr (Prints<T>)
        return AttributeTraits<T>::print(stored.value);
    else
        return {};
}

template <class T> bool TXmlAttribute<T>::isEqual(Core::String const& text) const {
    constexpr int comparison = RefusesComparison<T> ? 0 : 1;
    return isEqual(text, int_to_type<comparison>());
}

template <class T> bool TXmlAttribute<T>::isEqual(Core::String const&, int_to_type<0>) const {
    return false;
}

template <class T> bool TXmlAttribute<T>::isEqual(Core::String const& text, int_to_type<1>) const {
    TXmlAttribute parsed;
    if constexpr (Seeds<T>) parsed.stored.value = AttributeTraits<T>::seed();
    return AttributeTraits<T>::parse(parsed.stored.value, text) && *this == parsed.stored.value;
}

} // namespace Xml
