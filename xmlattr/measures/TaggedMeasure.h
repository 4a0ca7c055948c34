// A tag that says which form a value has, and the measure of the one form that has any.
#pragma once

#include "xmlattr/core/Export.h"

namespace Xml {

// The base of the values that are a measure or one of a few words. The measure counts where the tag
// is `measured`; in every other form it neither prints nor compares.
template <class Tag, Tag measured, class Measure> class TaggedMeasure {
public:
    // Equal tags and, where they say that there is one, equal measures.
    constexpr bool operator==(TaggedMeasure const& other) const {
        return tag == other.tag && (!isMeasured() || measure == other.measure);
    }

protected:
    constexpr TaggedMeasure(Tag newTag) : tag(newTag) {}
    constexpr TaggedMeasure(Measure const& newMeasure) : tag(measured), measure(newMeasure) {}

    constexpr bool isMeasured() const { return tag == measured; }

    Tag tag;
    Measure measure;
};

} // namespace Xml
