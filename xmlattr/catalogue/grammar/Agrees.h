// Whether what a value type made of a text is what the text means.
#pragma once

#include "xmlattr/catalogue/grammar/Meaning.h"

#include "xmlattr/Instantiations.h"

#include <initializer_list>

namespace Xml {

// One value as a value type holds it, in the terms of an Item.
struct Held {
    ItemKind kind = ItemKind::Word;
    float number = 0;
    std::u16string_view unit{}; // in the spelling of its recommendation
    bool operator==(Held const&) const = default;
};

Held heldOf(float number);
Held heldOf(int number);
Held heldOf(FloatOrPercent const& number);
Held heldOf(Length const& length);
Held heldOf(SLength const& length);

template <class LengthType> Held heldOf(MeasureOrPercent<LengthType> const& measure) {
    return measure.isPercent() ? Held{ItemKind::Percentage, measure.getPercent() * 100} : heldOf(measure.getLength());
}

// Whether one value of a text is the one that is held: numbers in single precision, give or take the rounding of a
// percentage to its fraction; a length of 0 whatever its unit; a bare number as pixels, as a fraction (1.5 is 150%)
// or as degrees. A word is what the type makes of it.
bool agrees(Item const& item, Held const& held);
// The same for every value of the text: the held ones in their order, with nothing left over on either side.
bool agrees(Meaning const& meaning, std::initializer_list<Held> held);

// The measure of a type that holds one or a word, or just one; nothing of any other type.
template <class T> auto measureOf(T const& value) {
    if constexpr (requires { heldOf(value); })
        return heldOf(value);
    else if constexpr (requires { heldOf(value.getLengthOrPercent()); })
        return heldOf(value.getLengthOrPercent());
    else if constexpr (requires { heldOf(value.getLength()); })
        return heldOf(value.getLength());
    else if constexpr (requires { heldOf(value.getSLength()); })
        return heldOf(value.getSLength());
    else if constexpr (requires { heldOf(value.getAbsoluteSize()); })
        return heldOf(value.getAbsoluteSize());
    else if constexpr (requires { heldOf(value.getAbsoluteStretch()); })
        return heldOf(value.getAbsoluteStretch());
}
template <class T>
concept HoldsMeasure = std::is_same_v<decltype(measureOf(std::declval<T const&>())), Held>;

// Every overload: whether a value type, having accepted the text, holds what it means. It does where the text is a
// word, but for the types that accept every text and might have missed the word.

template <HoldsMeasure T> bool agrees(Meaning const& meaning, T const& value) {
    return agrees(meaning, {measureOf(value)});
}

// A legal word that an enumeration accepts is its own.
template <KeywordEnumeration E> bool agrees(Meaning const&, E) {
    return true;
}
// Those that read numbers, or accept every text.
bool agrees(Meaning const& meaning, Keep keep);
bool agrees(Meaning const& meaning, MaxRepeats repeats);
bool agrees(Meaning const& meaning, ThreeState state);

bool agrees(Meaning const& meaning, DLength const& lengths);
bool agrees(Meaning const& meaning, Drawing::RectF const& rectangle);
bool agrees(Meaning const& meaning, SmartPtr<Drawing::Color> const& color);
bool agrees(Meaning const& meaning, SColor const& paint);
bool agrees(Meaning const& meaning, STextShadow const& shadow);
bool agrees(Meaning const& meaning, STextDecoration const& decoration);
bool agrees(Meaning const& meaning, SPreserveAspectRatio const& ratio);
bool agrees(Meaning const& meaning, TextAlign const& align);
bool agrees(Meaning const& meaning, InitialPageNumber const& number);
bool agrees(Meaning const& meaning, ForcePageCount const& count);
bool agrees(Meaning const& meaning, Url const& url);

// They keep the text, or know a few tags and refuse all others: legal is enough.
inline bool agrees(Meaning const&, Core::String const&) {
    return true;
}
inline bool agrees(Meaning const&, Language const&) {
    return true;
}

} // namespace Xml
