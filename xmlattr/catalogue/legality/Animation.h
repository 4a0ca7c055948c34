// The values that animations of SVG give to attributes: from, to, by and values. The row of the animated attribute
// judges them.
#pragma once

#include "xmlattr/catalogue/legality/Judge.h"

#include <optional>
#include <span>
#include <string_view>

namespace Xml {

// An element that animates, with its attributes as it has them; empty where it has none.
struct Animation {
    std::string_view element, attributeName{}, attributeType{}, type{}, additive{};
};

// What a value of an animation has to be.
struct AnimatedValue {
    // The value is legal if one of these rows has it so, since the element that is animated may be any.
    std::span<CatalogueEntry const> rows;
    Notation notation = Notation::Attribute;
    // What to say of a text that is not legal; empty where the grammar says enough: "expected one number or two".
    std::string_view problem{};
    // Whether it is added to another value, so that its numbers may be out of range.
    bool isAdded = false;
};

// The attribute is one of the animation itself, by its local name. Nothing unless it is one of the four and it is known
// what is animated. "values" is a list of such values, separated by semicolons.
XMLATTR_API std::optional<AnimatedValue> findAnimated(Animation const& animation, std::string_view attribute);

// Judges a single value as judge() does. Where no row finds it legal, the answer is that of the first row.
[[nodiscard]] XMLATTR_API Judgement judge(AnimatedValue const& animated, std::u16string_view text);

} // namespace Xml
