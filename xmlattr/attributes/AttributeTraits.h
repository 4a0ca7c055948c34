// What a value type says about itself to the attribute template; declared beside the type.
#pragma once

#include "xmlattr/attributes/Description.h"
#include "xmlattr/core/String.h"

#include <concepts>
#include <string_view>

namespace Xml {

// Specialised for each value type T:
//
//   static bool parse(T& value, std::u16string_view text);
//   static Core::String print(T const& value);               or printsEmpty
//   static constexpr bool printsEmpty = true;                there is no printer: attributes print ""
//   static constexpr Description describe{{u"a length"}};    what it reads
//
// and, where they apply,
//
//   static void words(Words& out);                           fixed texts, or parts of one, that it reads
//   static void parts(T const& value, Parts& out);           what a value consists of, beyond its print
//   static constexpr bool refusesComparison = true;          isEqual is false; absent: parse and compare
//   static T seed();                                         isEqual parses into it; absent: into T{}
template <class T> struct AttributeTraits;

template <class T>
concept Prints = requires(T const& value) {
    { AttributeTraits<T>::print(value) } -> std::same_as<Core::String>;
};

template <class T>
concept PrintsEmpty = AttributeTraits<T>::printsEmpty;

template <class T>
concept HasDescription = requires {
    { AttributeTraits<T>::describe } -> std::same_as<Description const&>;
};

template <class T>
concept HasWords = requires(Words& out) {
    AttributeTraits<T>::words(out);
};

template <class T>
concept HasParts = requires(T const& value, Parts& out) {
    AttributeTraits<T>::parts(value, out);
};

template <class T>
concept RefusesComparison = AttributeTraits<T>::refusesComparison;

template <class T>
concept Seeds = requires {
    { AttributeTraits<T>::seed() } -> std::same_as<T>;
};

// Whether the description of T, or its words, say what it reads.
template <class T> consteval bool saysWhatItReads() {
    if constexpr (HasDescription<T>)
        return !AttributeTraits<T>::describe.forms[0].empty() ||
               (AttributeTraits<T>::describe.listsWords && HasWords<T>);
    else
        return false;
}

// Where an attribute keeps its value. A type whose printer changes the value has its own.
template <class T> struct AttributeStorage { T value{}; };

} // namespace Xml
