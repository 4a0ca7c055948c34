// What the readers of composite measures share.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"

#include <string_view>

namespace Xml {

// Reads the text as one form of the value, an enumeration of its words or a measure. False when the
// text has not this form; then the value is untouched and another form may be tried.
template <class Form, class T> bool readAs(T& value, std::u16string_view text) {
    Form form{};
    if (!AttributeTraits<Form>::parse(form, text)) return false;
    value = T(form);
    return true;
}

// A word that stands for a measure; exact in case.
template <class Measure> struct NamedMeasure {
    std::u16string_view word;
    Measure measure;
};

template <class Measure, std::size_t n>
constexpr NamedMeasure<Measure> const* findWord(NamedMeasure<Measure> const (&rows)[n], std::u16string_view text) {
    for (NamedMeasure<Measure> const& row : rows)
        if (row.word == text) return &row;
    return nullptr;
}

// The first row with the measure, or null.
template <class Measure, std::size_t n>
constexpr NamedMeasure<Measure> const* findMeasure(NamedMeasure<Measure> const (&rows)[n], Measure const& measure) {
    for (NamedMeasure<Measure> const& row : rows)
        if (row.measure == measure) return &row;
    return nullptr;
}

} // namespace Xml
