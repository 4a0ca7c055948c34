// What animations of SVG give to attributes: the values of from, to, by and values, which the row of the attribute judges
// that the animation names.
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
    // What is wrong with any other text, where the grammar says too little: "expected one number or two".
    std::string_view problem{};
    // Whether it is added to another value, so that it may be in no range of numbers.
    bool isAdded = false;
};

// By the local name of an attribute. Nothing where the animation names no attribute that is known, or the attribute is
// none of the four. "values" is a list with semicolons between such values.
XMLATTR_API std::optional<AnimatedValue> findAnimated(Animation const& animation, std::string_view attribute);

// As judge(), of a single value; a fault is that of the first row.
[[nodiscard]] XMLATTR_API Judgement judge(AnimatedValue const& animated, std::u16string_view text);

} // namespace Xml
