// What a value consists of, for the value types whose printed text does not say it all. A type joins
// with an overload here. Pointers, since they do not convert as the value types do: what has no
// overload of its own takes the one of a base, or none.
#pragma once

#include "xmlattr/catalogue/types/AttributeTypes.h"

#include "xmlattr/Values.h"

#include <type_traits>

namespace Xml {

void describe(Shown& shown, Length const* length);
void describe(Shown& shown, DLength const* lengths);
void describe(Shown& shown, SLength const* length);
void describe(Shown& shown, LengthOrPercent const* measure);
void describe(Shown& shown, SLengthOrPercent const* measure);
void describe(Shown& shown, AutoOrMeasure const* measure);
void describe(Shown& shown, BackgroundSize const* size);
void describe(Shown& shown, PageDimension const* dimension);
void describe(Shown& shown, SSpacing const* spacing);
void describe(Shown& shown, SBaselineShift const* shift);
void describe(Shown& shown, FloatOrPercent const* number);
void describe(Shown& shown, Drawing::RectF const* rectangle);

void describe(Shown& shown, SmartPtr<Drawing::Color> const* color);
void describe(Shown& shown, SColor const* paint);
void describe(Shown& shown, BoxShadow const* shadow);
void describe(Shown& shown, STextShadow const* shadow);
void describe(Shown& shown, STextDecoration const* decoration);

void describe(Shown& shown, Transform const* transform);
void describe(Shown& shown, PathDataCommand const* command);
void describe(Shown& shown, Point const* point);
void describe(Shown& shown, ViewBox const* box);
void describe(Shown& shown, SPreserveAspectRatio const* ratio);

void describe(Shown& shown, Language const* language);
void describe(Shown& shown, InitialPageNumber const* number);
void describe(Shown& shown, InitialSheetNumber const* number);
void describe(Shown& shown, ForcePageCount const* count);
void describe(Shown& shown, DisplayCondition const* condition);
void describe(Shown& shown, TPRule const* rule);
void describe(Shown& shown, AxisUnits const* units);
void describe(Shown& shown, Value const* value);

// Every other type.
inline void describe(Shown&, void const*) {}

// The number of an enumerator, which no document shows.
template <class T>
requires std::is_enum_v<T>
void describe(Shown& shown, T const* value) {
    shown.parts.push_back({"number", std::to_string(static_cast<std::int32_t>(*value))});
}

template <class Measure> void describe(Shown& shown, FontSizeOf<Measure> const* size) {
    if (size->isRelativeSize())
        shown.parts.push_back({"relative", size->getRelativeSize() == RelativeFontSize::Larger ? "larger" : "smaller"});
    else
        describe(shown, &size->getAbsoluteSize());
}

template <class T> void describe(Shown& shown, Core::Vector<T> const* items) {
    shown.parts.push_back({"items", std::to_string(items->size())});
    for (T const& item : *items) describe(shown, &item);
}

} // namespace Xml
