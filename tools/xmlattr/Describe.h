// What a value consists of, for the value types whose printed text does not say it all. A type joins
// with an overload here.
#pragma once

#include "ValueTypes.h"

#include "xmlattr/Values.h"
#include "xmlattr/core/Format.h"

#include <concepts>

namespace Command {

inline std::string number(float value) {
    return Core::Format::toShortest(value).toUtf8();
}

inline void describe(Shown& shown, Xml::SLength const& length) {
    constexpr char const* units[] = {"", "pt", "", "cm", "mm", "in", "em", "ex", "pc", "%"};
    bool const isPercentage = length.getUnit() == Xml::SLength::Percent;
    shown.parts.push_back(
        {"size", number(isPercentage ? length.getSize() * 100 : length.getSize()) + units[length.getUnit()]});
    if (!isPercentage) shown.parts.push_back({"pixels", number(length.pxSize())});
}

inline void describe(Shown& shown, Xml::Length const& length) {
    shown.parts.push_back({"pixels", number(length.pxSize())});
}

inline void describe(Shown& shown, Xml::DLength const& lengths) {
    describe(shown, lengths.getFirst());
    describe(shown, lengths.getSecond());
}

inline void describe(Shown& shown, Drawing::RectF const& rectangle) {
    shown.parts.push_back({"top", number(rectangle.getTop())});
    shown.parts.push_back({"right", number(rectangle.getRight())});
    shown.parts.push_back({"bottom", number(rectangle.getBottom())});
    shown.parts.push_back({"left", number(rectangle.getLeft())});
}

// A list is shown by its items.
template <class T> void describe(Shown& shown, Core::Vector<T> const& items) {
    shown.parts.push_back({"items", std::to_string(items.size())});
    for (T const& item : items) describe(shown, item);
}

// An enumeration has a number, which documents never show.
template <class T>
requires std::is_enum_v<T>
void describe(Shown& shown, T const& value) {
    shown.parts.push_back({"number", std::to_string(static_cast<std::int32_t>(value))});
}

// Every other type.
template <class T> void describe(Shown&, T const&) {}

} // namespace Command
