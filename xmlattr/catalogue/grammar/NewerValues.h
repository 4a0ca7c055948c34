// The values of recommendations newer than XSL-FO 1.1 and SVG 1.1.
#pragma once

#include "xmlattr/catalogue/grammar/GrammarCompiler.h"

namespace Xml {

// What attributes of SVG 1.1 may be by a newer recommendation, where words of the lists below cannot tell: "auto" is
// new for some and an old word of others. The names are separated by blanks, and each stands in one row. What is legal
// in SVG 1.1 may be left out.
struct NewerValues {
    std::string_view words; // the attributes
    Grammar grammar;
    std::string_view recommendation;
};

inline constexpr NewerValues newerValues[] = {
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
struct NewerWords {
    std::string_view recommendation;
    std::u16string_view words;
};

inline constexpr NewerWords newerWords[] = {
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

inline constexpr NewerWords newerFunctions[] = {
    {"SVG 2", u"child"},
    {"CSS 3", u"rgba hsl hsla calc var linear-gradient radial-gradient repeating-linear-gradient "
              u"repeating-radial-gradient blur brightness contrast drop-shadow grayscale hue-rotate invert opacity "
              u"saturate sepia translateX translateY translateZ translate3d scaleX scaleY scaleZ scale3d rotateX "
              u"rotateY rotateZ rotate3d skew matrix3d perspective circle ellipse polygon inset path"},
    {"CSS 4", u"hwb lab lch oklab oklch color color-mix device-cmyk light-dark clamp env conic-gradient "
              u"repeating-conic-gradient image-set cross-fade"},
};
// XSL-FO has functions of these names.
inline constexpr NewerWords newerSvgFunctions[] = {{"CSS 4", u"min max round mod rem abs"}};
// Those of SVG 1.1 take plain numbers.
inline constexpr NewerWords olderTransforms[] = {{"SVG 1.1", u"translate scale rotate skewX skewY"}};

inline constexpr NewerWords newerUnits[] = {
    {"CSS 3", u"rem vw vh vmin vmax ch q turn dpi dpcm dppx fr"},
    {"CSS 4", u"lh rlh vi vb ic cap rex rch ric rcap svw svh lvw lvh dvw dvh"},
};

} // namespace Xml
