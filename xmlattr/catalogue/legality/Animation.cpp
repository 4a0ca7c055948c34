#include "xmlattr/catalogue/legality/Animation.h"

#include "xmlattr/catalogue/grammar/GrammarCompiler.h"
#include "xmlattr/catalogue/text/TableText.h"

#include <algorithm>

namespace Xml {

namespace {

constexpr CatalogueEntry rowOf(std::string_view name, Grammar const& grammar, std::string_view note) {
    return {Vocabulary::Svg, AttributeKind::Untyped, false, false, wordsOf<"*">, name, grammar, "", note};
}

// What animateTransform gives, by its type.
constexpr CatalogueEntry transforms[] = {
    rowOf("translate", "<number>~{1,2}"_grammar, "expected one number or two"),
    rowOf("scale", "<number>~{1,2}"_grammar, "expected one number or two"),
    rowOf("rotate", "<number> | <number>~{3}"_grammar, "expected one number or three"),
    rowOf("skewX", "<number>"_grammar, "expected one number"),
    rowOf("skewY", "<number>"_grammar, "expected one number"),
};

constexpr CatalogueEntry motion = rowOf(
    "animateMotion", "[ <length> | <percentage> ] ~ [ <length> | <percentage> ]"_grammar, "expected two coordinates");

std::span<CatalogueEntry const> transformOf(std::string_view type) {
    auto const* const row =
        std::ranges::find(transforms, type.empty() ? "translate" : type, &CatalogueEntry::attribute);
    return row == std::end(transforms) ? std::span<CatalogueEntry const>() : std::span(row, 1);
}

} // namespace

std::optional<AnimatedValue> findAnimated(Animation const& animation, std::string_view attribute) {
    bool const isValue = attribute == "from" || attribute == "to" || attribute == "by" || attribute == "values";
    if (!isValue) return std::nullopt;
    AnimatedValue animated{.rows = {}, .isAdded = attribute == "by" || animation.additive == "sum"};
    if (animation.element == "animateMotion" || animation.element == "animateTransform") {
        animated.rows = animation.element == "animateMotion" ? std::span(&motion, 1) : transformOf(animation.type);
        if (!animated.rows.empty()) animated.problem = animated.rows.front().note;
    } else if (animation.element == "animate" || animation.element == "animateColor" || animation.element == "set") {
        animated.rows = Catalogue::rowsOf(Vocabulary::Svg, animation.attributeName);
        // Unless it says so, properties are looked for before attributes.
        bool const isProperty = !animated.rows.empty() && animated.rows.front().isPresentation;
        if (isProperty && animation.attributeType != "XML") animated.notation = Notation::Declaration;
    }
    return animated.rows.empty() ? std::nullopt : std::optional(animated);
}

Judgement judge(AnimatedValue const& animated, std::u16string_view text) {
    std::optional<Judgement> fault;
    for (CatalogueEntry const& row : animated.rows) {
        Judgement judgement = judge(row, text, animated.notation);
        if (!isFault(judgement.verdict)) return judgement;
        if (animated.isAdded && judgement.isOutOfRange) return {Verdict::PassedOver};
        if (!fault) fault = std::move(judgement);
    }
    if (fault && fault->newer.empty() && fault->problem.empty()) fault->problem = animated.problem;
    return fault.value_or(Judgement());
}

} // namespace Xml
