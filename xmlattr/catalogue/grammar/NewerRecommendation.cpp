#include "xmlattr/catalogue/grammar/NewerRecommendation.h"

#include "xmlattr/catalogue/grammar/GrammarCompiler.h"
#include "xmlattr/catalogue/text/Words.h"
#include "xmlattr/core/Text.h"
#include "xmlattr/core/WordTable.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

namespace Xml {

namespace {

// What attributes of SVG 1.1 may be by a newer recommendation, where words of the lists below cannot tell: "auto" is
// new for some and an old word of others. The names are separated by blanks, and each stands in one row. What is legal in
// SVG 1.1 may be left out.
struct NewValues {
    std::string_view words; // the attributes
    Grammar grammar;
    std::string_view recommendation;
};

constexpr NewValues newValues[] = {
    {"d", "none"_grammar, "SVG 2"},
    {"height width rx ry", "auto"_grammar, "SVG 2"},
    {"id", "<reference>"_grammar, "SVG 2"},
    {"pointer-events", "auto | bounding-box"_grammar, "SVG 2"},
    {"refX", "left | center | right"_grammar, "SVG 2"},
    {"refY", "top | center | bottom"_grammar, "SVG 2"},
    {"alignment-baseline", "text-top | text-bottom | top | center | bottom"_grammar, "CSS 3"},
    {"baseline-shift", "top | center | bottom"_grammar, "CSS 3"},
    {"dominant-baseline", "text-top | text-bottom"_grammar, "CSS 3"},
    {"color fill flood-color lighting-color stop-color stroke", "currentColor | transparent"_grammar, "CSS 3"},
    {"cursor",
     "[ <uri> [ <number>{2} ]? , ]* [ auto | default | none | context-menu | help | pointer | progress | wait | cell | "
     "crosshair | text | vertical-text | alias | copy | move | no-drop | not-allowed | grab | grabbing | e-resize | "
     "n-resize | ne-resize | nw-resize | s-resize | se-resize | sw-resize | w-resize | ew-resize | ns-resize | "
     "nesw-resize | nwse-resize | col-resize | row-resize | all-scroll | zoom-in | zoom-out ]"_grammar,
     "CSS 3"},
    {"font-variant",
     "none | [ common-ligatures | no-common-ligatures | discretionary-ligatures | no-discretionary-ligatures | "
     "historical-ligatures | no-historical-ligatures | contextual | no-contextual | small-caps | all-small-caps | "
     "petite-caps | all-petite-caps | unicase | titling-caps | lining-nums | oldstyle-nums | proportional-nums | "
     "tabular-nums | diagonal-fractions | stacked-fractions | ordinal | slashed-zero | jis78 | jis83 | jis90 | jis04 | "
     "simplified | traditional | full-width | proportional-width | ruby | historical-forms | sub | super ]+"_grammar,
     "CSS 3"},
    {"gradientTransform patternTransform transform", "none"_grammar, "CSS 3"},
    {"image-rendering", "smooth | high-quality | pixelated | crisp-edges"_grammar, "CSS 3"},
    {"operator", "lighter"_grammar, "CSS 3"},
    {"overflow", "[ visible | hidden | clip | scroll | auto ]{1,2}"_grammar, "CSS 3"},
    {"text-decoration",
     "[ none | [ underline || overline || line-through || blink ] ] || "
     "[ solid | double | dotted | dashed | wavy ] || [ <color> | currentColor | transparent ] || "
     "[ auto | from-font | <length> | <percentage> ]"_grammar,
     "CSS 3"},
    {"fill-opacity flood-opacity opacity stop-opacity stroke-opacity", "<percentage>"_grammar, "CSS 4"},
    {"font-stretch", "<percentage [0,]>"_grammar, "CSS 4"},
    {"font-style", "oblique <angle [-90,90]>"_grammar, "CSS 4"},
    {"font-weight", "<number [1,1000]>"_grammar, "CSS 4"},
    {"letter-spacing word-spacing", "<percentage>"_grammar, "CSS 4"},
};

// The words between blanks are of the recommendation; those of colours and units are in CSS Color and CSS Values.
struct Words {
    std::string_view recommendation;
    std::u16string_view words;
};

constexpr Words newWords[] = {
    {"SVG 2", u"context-fill context-stroke context-value auto-start-reverse arcs miter-clip fill-box stroke-box "
              u"view-box non-scaling-stroke non-scaling-size non-rotation fixed-position"},
    {"CSS 2.1", u"inline-block pre-line pre-wrap"},
    {"CSS 3", u"initial unset content-box border-box padding-box margin-box horizontal-tb vertical-rl vertical-lr "
              u"sideways upright isolate isolate-override plaintext match-parent justify-all max-content min-content "
              u"fit-content flex inline-flex grid inline-grid contents flow-root overlay color-dodge color-burn "
              u"hard-light soft-light difference exclusion hue saturation luminosity wavy not-allowed "
              u"no-drop grab grabbing zoom-in zoom-out context-menu cell vertical-text alias copy all-scroll "
              u"col-resize row-resize ew-resize ns-resize nesw-resize nwse-resize break-word"},
    {"CSS 4", u"revert revert-layer rebeccapurple xxx-large break-spaces plus-lighter"},
};

constexpr Words newFunctions[] = {
    {"SVG 2", u"child"},
    {"CSS 3", u"rgba hsl hsla calc var linear-gradient radial-gradient repeating-linear-gradient "
              u"repeating-radial-gradient blur brightness contrast drop-shadow grayscale hue-rotate invert opacity "
              u"saturate sepia translateX translateY translateZ translate3d scaleX scaleY scaleZ scale3d rotateX "
              u"rotateY rotateZ rotate3d skew matrix3d perspective circle ellipse polygon inset path"},
    {"CSS 4", u"hwb lab lch oklab oklch color color-mix device-cmyk light-dark clamp env conic-gradient "
              u"repeating-conic-gradient image-set cross-fade"},
};
// XSL-FO has functions of these names.
constexpr Words newSvgFunctions[] = {{"CSS 4", u"min max round mod rem abs"}};
// Those of SVG 1.1 take plain numbers.
constexpr Words transforms[] = {{"SVG 1.1", u"translate scale rotate skewX skewY"}};

constexpr Words newUnits[] = {
    {"CSS 3", u"rem vw vh vmin vmax ch q turn dpi dpcm dppx fr"},
    {"CSS 4", u"lh rlh vi vb ic cap rex rch ric rcap svw svh lvw lvh dvw dvh"},
};

template <class Unit> constexpr std::basic_string_view<Unit> takeFirst(std::basic_string_view<Unit>& words) {
    std::basic_string_view<Unit> const word = words.substr(0, words.find(Unit{' '}));
    words.remove_prefix(std::min(word.size() + 1, words.size()));
    return word;
}

// The words of all lists, each with the number of its list.
template <auto const& lists>
constexpr auto rowsOf = [] {
    constexpr std::size_t count = [] {
        std::size_t words = 0;
        for (auto const& list : lists)
            for (auto rest = list.words; !rest.empty(); ++words) takeFirst(rest);
        return words;
    }();
    using Unit = typename decltype(lists[0].words)::value_type;
    std::array<Core::WordRow<std::size_t, Unit>, count> rows{};
    std::size_t next = 0;
    for (std::size_t i = 0; i < std::size(lists); ++i)
        for (auto rest = lists[i].words; !rest.empty();) rows[next++] = {takeFirst(rest), i};
    return rows;
}();

// The recommendation that has the word; empty when none has.
template <auto const& lists> std::string_view find(std::u16string_view word) {
    auto const list = Core::WordTable<rowsOf<lists>, Core::Case::Any>::find(word);
    return list ? lists[*list].recommendation : std::string_view();
}

bool belongsToWord(char16_t unit) {
    return Core::isLetter(unit) || Core::isDigit(unit) || unit == u'-' || unit == u'_' || unit >= 0x80;
}

class Scanner {
public:
    Scanner(Dialect dialect, std::u16string_view text) : isSvg(dialect != Dialect::Fo), text(text) {}

    std::string_view find() {
        while (index < text.size()) {
            char16_t const unit = text[index];
            std::string_view found;
            if (unit == u'"' || unit == u'\'') {
                index = std::min(text.find(unit, index + 1), text.size() - 1) + 1;
            } else if (unit == u'#') {
                ++index;
                found = color(takeWord());
            } else if (Core::isDigit(unit)) {
                found = number();
            } else if (belongsToWord(unit)) {
                found = word(takeWord());
            } else {
                if (unit == u')') isTransform = false;
                ++index;
            }
            if (!found.empty()) return found;
        }
        return {};
    }

private:
    std::u16string_view takeWord() {
        std::size_t const first = index;
        while (index < text.size() && belongsToWord(text[index])) ++index;
        return text.substr(first, index - first);
    }

    static std::string_view color(std::u16string_view digits) {
        bool const hasAlpha = (digits.size() == 4 || digits.size() == 8) &&
                              std::ranges::all_of(digits, [](char16_t unit) { return Core::hexDigit(unit) >= 0; });
        return hasAlpha ? "CSS 4" : "";
    }

    std::string_view number() {
        while (index < text.size() && (Core::isDigit(text[index]) || text[index] == u'.')) ++index;
        bool const isPercentage = index < text.size() && text[index] == u'%';
        std::u16string_view const unit = takeWord();
        bool const isExponent = unit.size() > 1 && Core::toLower(unit[0]) == u'e' && !Core::isLetter(unit[1]);
        if (isTransform && (isPercentage || (!unit.empty() && Core::isLetter(unit[0]) && !isExponent))) return "CSS 3";
        return Xml::find<newUnits>(unit);
    }

    std::string_view word(std::u16string_view word) {
        if (index == text.size() || text[index] != u'(')
            return word == u"currentcolor" ? "CSS 4" : Xml::find<newWords>(word);
        if (equalsWord(word, "url", true)) {
            index = std::min(text.find(u')', index), text.size());
            return {};
        }
        if (equalsWord(word, "rgb", true)) return components();
        isTransform = isSvg && !Xml::find<transforms>(word).empty();
        std::string_view const found = Xml::find<newFunctions>(word);
        bool const isColor = word == u"rgba" || word == u"hsl" || word == u"hsla" || word == u"hwb";
        if (isColor && !hasComponents()) return {};
        return found.empty() && isSvg ? Xml::find<newSvgFunctions>(word) : found;
    }

    std::u16string_view arguments() const {
        std::u16string_view const rest = text.substr(index + 1);
        return rest.substr(0, rest.find(u')'));
    }

    // Three, and perhaps an alpha; a call among them may give several.
    bool hasComponents() const {
        std::u16string_view const given = arguments();
        std::size_t const count = splitValues(given, u",/").size();
        return count == 3 || count == 4 || given.find(u'(') != std::u16string_view::npos;
    }

    // rgb() with blanks instead of commas, or with a fourth part.
    std::string_view components() const {
        std::u16string_view const arguments = this->arguments();
        auto const commas = std::ranges::count(arguments, u',');
        bool const hasBlanks = commas == 0 && splitValues(trimXmlSpace(arguments)).size() >= 3;
        return hasBlanks || commas == 3 || arguments.find(u'/') != std::u16string_view::npos ? "CSS 4" : "";
    }

    bool isSvg;
    std::u16string_view text;
    std::size_t index = 0;
    bool isTransform = false;
};

} // namespace

std::string_view newerRecommendation(Dialect dialect, std::string_view attribute, std::u16string_view text) {
    Meaning meaning;
    auto const row = dialect == Dialect::Fo ? std::nullopt : Core::WordTable<rowsOf<newValues>>::find(attribute);
    if (row && readMeaning(meaning, newValues[*row].grammar, dialect, text)) return newValues[*row].recommendation;
    bool const isPath = attribute == "d" || attribute == "path"; // whose letters are no units
    if (isPath) return {};
    return Scanner(dialect, text).find();
}

} // namespace Xml
