#include "xmlattr/catalogue/types/Describe.h"

#include "xmlattr/core/Format.h"
#include "xmlattr/drawing/ColorSpace.h"
#include "xmlattr/drawing/SpotColor.h"
#include "xmlattr/measures/Units.h"

#include <cmath>

namespace Xml {

namespace {

template <class Number> std::string text(Number value) {
    return Core::Format::toShortest(value).toUtf8();
}

std::string percentage(float fraction) {
    return Core::Format::toMeasure(double{fraction} * 100, u"%").toUtf8();
}

std::string text(Length const& length) {
    return Length::getValueAsString(length).toUtf8();
}

std::string text(SLength const& length) {
    SLength::Unit const unit = length.getUnit();
    if (unit == SLength::Percent) return percentage(length.getSize());
    std::string const size = text(length.getSize());
    return unit == SLength::UserUnit ? size : size + Core::String(Units::word(rowOfUnit(unit))).toUtf8();
}

std::string text(SLengthOrPercent const& measure) {
    return measure.isPercent() ? percentage(measure.getPercent()) : text(measure.getLength());
}

void add(Shown& shown, std::string name, std::string value) {
    shown.parts.push_back({std::move(name), std::move(value)});
}

template <KeywordEnumeration Kind> void addKind(Shown& shown, Kind kind) {
    add(shown, "kind", AttributeTraits<Kind>::print(kind).toUtf8());
}

template <class Measure> void addMeasure(Shown& shown, Measure const& measure) {
    if (measure.isPercent())
        add(shown, "fraction", text(measure.getPercent()));
    else
        describe(shown, &measure.getLength());
}

void addColor(Shown& shown, std::string kind, std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    if (!kind.empty()) add(shown, "kind", std::move(kind));
    add(shown, "rgb", text(static_cast<int>(r)) + " " + text(static_cast<int>(g)) + " " + text(static_cast<int>(b)));
    shown.rgb = r << 16 | g << 8 | b;
}

// How the ink looks without a colour profile.
std::uint32_t shade(double ink, double black) {
    auto const light = [](double part) { return 1 - (part < 0 ? 0 : part > 1 ? 1 : part); };
    return static_cast<std::uint32_t>(std::lround(255 * light(ink) * light(black)));
}

template <class Shadow> void addOffsets(Shown& shown, Shadow const& shadow) {
    add(shown, "offset", text(shadow.getDx()) + " " + text(shadow.getDy()));
    add(shown, "blur", text(shadow.getBlurRadius()));
}

} // namespace

void describe(Shown& shown, Length const* length) {
    add(shown, "pixels", text(length->pxSize()));
}

void describe(Shown& shown, DLength const* lengths) {
    describe(shown, &lengths->getFirst());
    describe(shown, &lengths->getSecond());
}

void describe(Shown& shown, SLength const* length) {
    add(shown, "size", text(*length));
    if (length->getUnit() != SLength::Percent) add(shown, "pixels", text(length->pxSize()));
}

void describe(Shown& shown, LengthOrPercent const* measure) {
    addMeasure(shown, *measure);
}

void describe(Shown& shown, SLengthOrPercent const* measure) {
    addMeasure(shown, *measure);
}

void describe(Shown& shown, AutoOrMeasure const* measure) {
    if (measure->isAuto())
        add(shown, "automatic", "yes");
    else
        describe(shown, &measure->getLengthOrPercent());
}

void describe(Shown& shown, BackgroundSize const* size) {
    if (size->getType() == BackgroundSizeType::LengthOrPercent) addMeasure(shown, *size);
}

void describe(Shown& shown, PageDimension const* dimension) {
    if (dimension->getType() == PageDimensionType::Length)
        describe(shown, &dimension->getLength());
    else
        addKind(shown, dimension->getType());
}

void describe(Shown& shown, SSpacing const* spacing) {
    if (spacing->isNormal())
        add(shown, "kind", "normal");
    else
        describe(shown, &spacing->getSLength());
}

void describe(Shown& shown, SBaselineShift const* shift) {
    if (shift->getMode() == BaselineShiftMode::LengthOrPercent)
        describe(shown, &shift->getLengthOrPercent());
    else
        addKind(shown, shift->getMode());
}

void describe(Shown& shown, FloatOrPercent const* number) {
    add(shown, "number", text(number->getValue()));
}

void describe(Shown& shown, Drawing::RectF const* rectangle) {
    add(shown, "top", text(rectangle->getTop()));
    add(shown, "right", text(rectangle->getRight()));
    add(shown, "bottom", text(rectangle->getBottom()));
    add(shown, "left", text(rectangle->getLeft()));
}

void describe(Shown& shown, SmartPtr<Drawing::Color> const* color) {
    if (!*color) return add(shown, "kind", "no colour");
    if (auto const* const rgb = dynamic_cast<Drawing::RGBColor const*>(&**color))
        return addColor(shown, "RGB", rgb->getR(), rgb->getG(), rgb->getB());
    if (auto const* const cmyk = dynamic_cast<Drawing::CMYKColor const*>(&**color)) {
        double const c = cmyk->getC(), m = cmyk->getM(), y = cmyk->getY(), k = cmyk->getK();
        add(shown, "kind", "CMYK");
        add(shown, "cmyk", text(c) + " " + text(m) + " " + text(y) + " " + text(k));
        shown.rgb = shade(c, k) << 16 | shade(m, k) << 8 | shade(y, k);
    } else if (auto const* const icc = dynamic_cast<Drawing::ICCColor const*>(&**color)) {
        addColor(shown, "ICC", icc->getFallBackR(), icc->getFallBackG(), icc->getFallBackB());
        add(shown, "profile", icc->getColorSpace()->getProfileName().toUtf8());
        for (int i = 0; i < icc->getCount(); ++i) add(shown, "component", text(icc->getColor(i)));
    } else if (auto const* const spot = dynamic_cast<Drawing::SpotColor const*>(&**color)) {
        add(shown, "kind", "spot");
        add(shown, "name", spot->getColorName().toUtf8());
        add(shown, "tint", text(spot->getTint()));
    }
}

void describe(Shown& shown, SColor const* paint) {
    switch (paint->getType()) {
    case SColor::None: return add(shown, "kind", "no paint");
    case SColor::Url: return add(shown, "reference", paint->getUrl().toUtf8());
    case SColor::Color: break;
    }
    auto const color = paint->getColor();
    describe(shown, &color);
}

void describe(Shown& shown, BoxShadow const* shadow) {
    addOffsets(shown, *shadow);
    auto const color = shadow->getColor();
    describe(shown, &color);
}

void describe(Shown& shown, STextShadow const* shadow) {
    addOffsets(shown, *shadow);
    auto const color = shadow->getColor();
    describe(shown, &color);
}

void describe(Shown& shown, STextDecoration const* decoration) {
    if (decoration->isUnderline()) add(shown, "line", "underline");
    if (decoration->isOverline()) add(shown, "line", "overline");
    if (decoration->isLineThrough()) add(shown, "line", "line-through");
}

void describe(Shown& shown, Transform const* transform) {
    switch (transform->type) {
    case TransformType::Matrix: {
        std::string numbers;
        for (double const number : transform->matrix) numbers.append(numbers.empty() ? "" : " ").append(text(number));
        return add(shown, "matrix", numbers);
    }
    case TransformType::Translate:
        return add(shown, "translate", text(transform->tx.getValue()) + " " + text(transform->ty.getValue()));
    case TransformType::Scale: return add(shown, "scale", text(transform->sx) + " " + text(transform->sy));
    case TransformType::Rotate:
        return add(shown, "rotate",
                   text(transform->angle) + " around " + text(transform->cx.getValue()) + " " +
                       text(transform->cy.getValue()));
    case TransformType::SkewX: return add(shown, "skewX", text(transform->skewAngleX));
    case TransformType::SkewY: return add(shown, "skewY", text(transform->skewAngleY));
    }
}

void describe(Shown& shown, PathDataCommand const* command) {
    auto const pair = [](SLength const& x, SLength const& y) { return text(x) + "," + text(y); };
    auto const name = [&](std::string const& word) { return command->relative ? word + ", rel." : word; };
    std::string const end = pair(command->x, command->y);
    switch (static_cast<PathCommandKind>(command->kind)) {
        using namespace PathCommandKinds;
    case MoveTo: return add(shown, name("move"), end);
    case ClosePath: return add(shown, "close", "");
    case LineTo: return add(shown, name("line"), end);
    case HorizontalLineTo: return add(shown, name("across"), text(command->x));
    case VerticalLineTo: return add(shown, name("down"), text(command->y));
    case CurveTo:
        return add(shown, name("curve"),
                   end + " by " + pair(command->x1, command->y1) + " " + pair(command->x2, command->y2));
    case SmoothCurveTo: return add(shown, name("smooth"), end + " by " + pair(command->x2, command->y2));
    case QuadraticCurveTo: return add(shown, name("quad"), end + " by " + pair(command->x1, command->y1));
    case SmoothQuadraticCurveTo: return add(shown, name("smooth quad"), end);
    case ArcTo:
        return add(shown, name("arc"),
                   end + " radii " + pair(command->rx, command->ry) + " turned " + text(command->xAxisRotation) +
                       (command->largeArc ? " large" : " small") + (command->sweep ? " sweep" : ""));
    }
}

void describe(Shown& shown, Point const* point) {
    add(shown, "point", text(point->x) + "," + text(point->y));
}

void describe(Shown& shown, ViewBox const* box) {
    add(shown, "corner", text(box->x) + " " + text(box->y));
    add(shown, "size", text(box->width) + " " + text(box->height));
}

void describe(Shown& shown, SPreserveAspectRatio const* ratio) {
    constexpr char const* words[] = {"none", "meet", "slice", "xMin", "xMid", "xMax", "YMin", "YMid", "YMax"};
    std::string held;
    for (int bit = 0; bit < 9; ++bit)
        if (ratio->getAspectRatio() >> bit & 1) held.append(held.empty() ? "" : " ").append(words[bit]);
    add(shown, "fit", held);
}

void describe(Shown& shown, Language const* language) {
    add(shown, "tag", Language::getISO639LanguageName(*language).toUtf8());
    add(shown, "language", Language::getFullLanguageNameById(language->getLanguage()).toUtf8());
}

void describe(Shown& shown, InitialPageNumber const* number) {
    constexpr char const* types[] = {"auto", "auto-odd", "auto-even", "number", "multiple"};
    add(shown, "kind", types[static_cast<int>(number->getType())]);
    if (number->getType() == InitialPageNumberType::Number) add(shown, "page", text(number->getNumber()));
    if (number->getType() == InitialPageNumberType::MultipleOf) add(shown, "multiple", text(number->getMultiple()));
}

void describe(Shown& shown, InitialSheetNumber const* number) {
    bool const isAuto = number->getType() == InitialSheetNumberType::Auto;
    add(shown, "sheet", isAuto ? "auto" : text(number->getNumber()));
}

void describe(Shown& shown, ForcePageCount const* count) {
    constexpr char const* types[] = {"auto",       "even",     "odd",         "end-on-even",
                                     "end-on-odd", "no-force", "multiple-of", "end-on-multiple-of"};
    add(shown, "kind", types[static_cast<int>(count->getType())]);
    if (count->getCount() != -1) add(shown, "count", text(count->getCount()));
}

void describe(Shown& shown, DisplayCondition const* condition) {
    add(shown, "conditions", std::to_string(condition->getConditions().size()));
}

void describe(Shown& shown, TPRule const* rule) {
    if (rule->getType() == TPRuleType::FindKeyword) add(shown, "keyword", rule->getKeyword().toUtf8());
}

void describe(Shown& shown, AxisUnits const* units) {
    constexpr char const* types[] = {"auto", "days", "months", "years"};
    bool const isNumber = units->getType() == AxisUnits::Numeric;
    add(shown, "units", isNumber ? text(units->getNumericVal()) : types[units->getType()]);
}

void describe(Shown& shown, Value const* value) {
    constexpr char const* types[] = {"none", "number", "date", "string"};
    add(shown, "kind", types[static_cast<int>(value->getType())]);
    add(shown, "value", value->getValue().toUtf8());
}

} // namespace Xml
