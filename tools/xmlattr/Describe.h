// What a value consists of, for the value types whose printed text does not say it all. A type joins
// with an overload here. Pointers, since they do not convert as the value types do: what has no
// overload of its own takes the one of a base, or none.
#pragma once

#include "ValueTypes.h"

#include "xmlattr/Values.h"

#include <type_traits>

namespace Command {

void describe(Shown& shown, Xml::Length const* length);
void describe(Shown& shown, Xml::DLength const* lengths);
void describe(Shown& shown, Xml::SLength const* length);
void describe(Shown& shown, Xml::LengthOrPercent const* measure);
void describe(Shown& shown, Xml::SLengthOrPercent const* measure);
void describe(Shown& shown, Xml::AutoOrMeasure const* measure);
void describe(Shown& shown, Xml::BackgroundSize const* size);
void describe(Shown& shown, Xml::PageDimension const* dimension);
void describe(Shown& shown, Xml::SSpacing const* spacing);
void describe(Shown& shown, Xml::SBaselineShift const* shift);
void describe(Shown& shown, Xml::FloatOrPercent const* number);
void describe(Shown& shown, Drawing::RectF const* rectangle);

void describe(Shown& shown, Xml::SmartPtr<Drawing::Color> const* color);
void describe(Shown& shown, Xml::SColor const* paint);
void describe(Shown& shown, Xml::BoxShadow const* shadow);
void describe(Shown& shown, Xml::STextShadow const* shadow);
void describe(Shown& shown, Xml::STextDecoration const* decoration);

void describe(Shown& shown, Xml::Transform const* transform);
void describe(Shown& shown, Xml::PathDataCommand const* command);
void describe(Shown& shown, Xml::Point const* point);
void describe(Shown& shown, Xml::ViewBox const* box);
void describe(Shown& shown, Xml::SPreserveAspectRatio const* ratio);

void describe(Shown& shown, Xml::Language const* language);
void describe(Shown& shown, Xml::InitialPageNumber const* number);
void describe(Shown& shown, Xml::InitialSheetNumber const* number);
void describe(Shown& shown, Xml::ForcePageCount const* count);
void describe(Shown& shown, Xml::DisplayCondition const* condition);
void describe(Shown& shown, Xml::TPRule const* rule);
void describe(Shown& shown, Xml::AxisUnits const* units);
void describe(Shown& shown, Xml::Value const* value);

// Every other type.
inline void describe(Shown&, void const*) {}

// The number of an enumerator, which no document shows.
template <class T>
requires std::is_enum_v<T>
void describe(Shown& shown, T const* value) {
    shown.parts.push_back({"number", std::to_string(static_cast<std::int32_t>(*value))});
}

template <class Measure> void describe(Shown& shown, Xml::FontSizeOf<Measure> const* size) {
    if (size->isRelativeSize())
        shown.parts.push_back(
            {"relative", size->getRelativeSize() == Xml::RelativeFontSize::Larger ? "larger" : "smaller"});
    else
        describe(shown, &size->getAbsoluteSize());
}

template <class T> void describe(Shown& shown, Core::Vector<T> const* items) {
    shown.parts.push_back({"items", std::to_string(items->size())});
    for (T const& item : *items) describe(shown, &item);
}

} // namespace Command
