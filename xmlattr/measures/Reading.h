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

template <class T, class Measure, std::size_t n>
bool readAsWord(T& value, NamedMeasure<Measure> const (&rows)[n], std::u16string_view text) {
    auto const* const row = findWord(rows, text);
    if (row) value = T(row->measure);
    return row != nullptr;
}

// The first row with the measure, or null.
template <class Measure, std::size_t n>
constexpr NamedMeasure<Measure> const* findMeasure(NamedMeasure<Measure> const (&rows)[n], Measure const& measure) {
    for (NamedMeasure<Measure> const& row : rows)
        if (row.measure == measure) return &row;
    return nullptr;
}

// What stands between the first "(" and the next ")", or the end when there is none; empty without "(".
inline std::u16string_view argumentOf(std::u16string_view text) {
    std::size_t const open = text.find(u'(');
    if (open == std::u16string_view::npos) return {};
    text.remove_prefix(open + 1);
    return text.substr(0, text.find(u')'));
}

} // namespace Xml
