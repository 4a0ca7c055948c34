// What a value type tells the attribute template about itself, beside its own declaration.
#pragma once

#include "xmlattr/core/String.h"

#include <concepts>
#include <string_view>

namespace Xml {

// Specialised for each value type T:
//
//   static bool parse(T& value, std::u16string_view text);   required
//   static Core::String print(T const& value);               absent: the attribute prints ""
//   static constexpr bool refusesComparison = true;          absent: isEqual parses and compares
//   static T seed();                                         absent: isEqual parses into T{}
template <class T> struct AttributeTraits;

template <class T>
concept Prints = requires(T const& value) {
    { AttributeTraits<T>::print(value) } -> std::same_as<Core::String>;
};

template <class T>
concept RefusesComparison = AttributeTraits<T>::refusesComparison;

template <class T>
concept Seeds = requires {
    { AttributeTraits<T>::seed() } -> std::same_as<T>;
};

// Where an attribute keeps its value. A type whose printer changes the value has its own.
template <class T> struct AttributeStorage { T value{}; };

} // namespace Xml
