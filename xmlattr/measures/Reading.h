// What the readers of composite measures share.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/core/WordTable.h"

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

// Words that stand for a measure, exact in case.
template <class T> using MeasureWords = Core::WordTable<AttributeTraits<T>::rows>;

template <class T> bool readAsWord(T& value, std::u16string_view text) {
    std::size_t const row = MeasureWords<T>::indexOf(text);
    if (row != Core::noWord) value = T(MeasureWords<T>::value(row));
    return row != Core::noWord;
}

// What stands between the first "(" and the next ")", or the end when there is none; empty without "(".
inline std::u16string_view argumentOf(std::u16string_view text) {
    std::size_t const open = text.find(u'(');
    if (open == std::u16string_view::npos) return {};
    text.remove_prefix(open + 1);
    return text.substr(0, text.find(u')'));
}

} // namespace Xml
