// What a debugger shows, as the comment at each value says; a second text after a bar is what natvis shows. Read by
// views.py, which stops at the end of main.
#include "xmlattr/xmlattr.h"

using namespace Xml;
using Path = Core::Vector<PathDataCommand>;
using Moves = Core::Vector<Transform>;
using Color = SmartPtr<Drawing::Color>;

template <class T> TXmlAttribute<T> read(char16_t const* text) {
    TXmlAttribute<T> attribute;
    attribute.parseValue(text);
    return attribute;
}

// Attributes of each family.
auto length = read<Length>(u"12.3456pt");                         // Length 12.3456pt
auto millimetres = read<Length>(u"-1.5mm");                       // Length -1.5mm
auto pair = read<DLength>(u"1pt 2px");                            // DLength 1pt 2px
auto userUnits = read<SLength>(u"12px");                          // SLength 12
auto fraction = read<SLength>(u"12.5%");                          // SLength 12.5%
auto absent = TXmlAttribute<SNullableLength>();                   // SNullableLength null
auto present = read<SNullableLength>(u"3pc");                     // SNullableLength 3pc
auto percent = read<LengthOrPercent>(u"50%");                     // LengthOrPercent 50%
auto eitherLength = read<SLengthOrPercent>(u"2em");               // SLengthOrPercent 2em
auto absentEither = TXmlAttribute<SNullableLengthOrPercent>();    // SNullableLengthOrPercent null
auto ratio = read<FloatOrPercent>(u"50%");                        // FloatOrPercent 0.5
auto autoMargin = TXmlAttribute<Margin>();                        // Margin auto
auto margin = read<Margin>(u"4pt");                               // Margin 4pt
auto column = read<ColumnWidth>(u"proportional-column-width(2)"); // ColumnWidth 200%
auto scaled = read<ContentLength>(u"scale-to-fit");               // ContentLength ScaleToFit
auto contentLength = read<ContentLength>(u"4cm");                 // ContentLength 4cm
auto indent = read<Indent>(u"label-end()");                       // Indent LabelEnd
auto indentBy = read<Indent>(u"5%");                              // Indent 5%
auto adjusted = read<AlignmentAdjust>(u"before-edge");            // AlignmentAdjust BeforeEdge
auto adjustedBy = read<AlignmentAdjust>(u"1in");                  // AlignmentAdjust 1in
auto shift = read<BaselineShift>(u"super");                       // BaselineShift Super
auto shiftBy = read<SBaselineShift>(u"-2");                       // SBaselineShift -2
auto thick = read<BorderWidth>(u"thick");                         // BorderWidth "thick" = 5pt
auto border = TXmlAttribute<BorderWidth>();                       // BorderWidth 1.5pt
auto spacing = TXmlAttribute<LetterSpacing>();                    // LetterSpacing SpacingNormal
auto pageHeight = read<PageDimension>(u"indefinite");             // PageDimension Indefinite
auto noFontSize = TXmlAttribute<FontSize>();                      // FontSize NoValue
auto relativeSize = read<FontSize>(u"smaller");                   // FontSize Smaller
auto fontSize = read<SFontSize>(u"12");                           // SFontSize 12
auto stretch = read<FontStretch>(u"ultra-condensed");             // FontStretch UltraCondensed
auto position = read<BackgroundPosition>(u"bottom");              // BackgroundPosition "right" = 100%
auto positionBy = read<BackgroundPosition>(u"3px");               // BackgroundPosition 3px
auto cover = read<BackgroundSize>(u"cover");                      // BackgroundSize Cover
auto backgroundSize = read<BackgroundSize>(u"30%");               // BackgroundSize 30%
auto alignment = read<TextAlign>(u"justify");                     // TextAlign Justify
auto alignedAt = read<TextAlign>(u"\u20ac");                      // TextAlign AlignmentString "€"
auto filter = read<Drawing::ImageFilter>(u"bicubic");             // Drawing::ImageFilter Bicubic

auto noColor = TXmlAttribute<Color>();        // SmartPtr<Drawing::Color> null
auto orange = read<Color>(u"DarkOrange");     // SmartPtr<Drawing::Color> rgb(255,140,0)
auto ink = read<Color>(u"cmyk(0.1,0.2,0,1)"); // SmartPtr<Drawing::Color> cmyk(0.1,0.2,0,1)
auto profiled = read<Color>(
    u"rgb-icc(1,2,3,#CMYK,0.1)"); // SmartPtr<Drawing::Color> rgb-icc(1,2,3,"CMYK",0.1) | rgb-icc(1,2,3,"CMYK")
Color spot = new Drawing::SpotColor(u"Gold", 0.5f, nullptr); // spot-color("Gold",0.5)
auto noPaint = TXmlAttribute<SColor>();                      // SColor None
auto paint = read<SColor>(u"#fff");                          // SColor rgb(255,255,255)
auto gradient = read<SColor>(u"url(#a) red");                // SColor "#a"
auto absentPaint = TXmlAttribute<SNullableColor>();          // SNullableColor null

auto boxShadow = read<BoxShadow>(u"1px 2px red");              // BoxShadow 1px 2px 0px rgb(255,0,0)
auto textShadow = read<STextShadow>(u"1 2 3");                 // STextShadow 1 2 3 null
auto lines = read<STextDecoration>(u"underline,line-through"); // STextDecoration underline, line-through
auto noLines = TXmlAttribute<STextDecoration>();               // STextDecoration none
auto aspect = read<SPreserveAspectRatio>(u"xMinYMax slice");   // SPreserveAspectRatio xMinYMax slice | 10c
auto viewBox = read<ViewBox>(u"0 0 50% 1e3pt");                // ViewBox 0 0 50% 1000pt

auto language = read<Language>(u"en-au");                    // Language English, Australia
auto german = read<Language>(u"de");                         // Language German
auto firstPage = read<InitialPageNumber>(u"7");              // InitialPageNumber Number 7
auto multiple = read<InitialPageNumber>(u"multiple-of(4)");  // InitialPageNumber MultipleOf 4
auto sheet = TXmlAttribute<InitialSheetNumber>();            // InitialSheetNumber Auto
auto pages = read<ForcePageCount>(u"end-on-multiple-of(4)"); // ForcePageCount EndOnMultipleOf 4
auto condition = read<DisplayCondition>(u"match(b)");        // DisplayCondition Match "b" | {Match "b"}
auto both = read<DisplayCondition>(
    u"is-after(a) and match(b)");              // DisplayCondition IsAfter "a" and Match "b" | {IsAfter "a", Match "b"}
auto rule = read<TPRule>(u"FIND_KEYWORD(x)");  // TPRule FindKeyword "x"
auto url = read<Url>(u"url('a b')");           // Url "a b"
auto source = read<AxisSource>(u"year(Sold)"); // AxisSource "year"("Sold")
auto field = read<AxisSource>(u"Sold");        // AxisSource "Sold" | ""("Sold")
auto units = read<AxisUnits>(u"1.5");          // AxisUnits Numeric 1.5
auto points = read<MaxDataPoints>(u"12");      // MaxDataPoints Count 12
auto date = read<Value>(
    u"2020-01-31T10:20:30.5-02:30"); // Value Date 2020-01-31T10:20:30.5-02:30 | Date 1580466030 s from 1970-01-01
auto number = read<Value>(u"0.1");   // Value Number 0.1
auto datum = read<Value>(u"\"north\"\u0001"); // Value String ""north"\u0001"

// Keywords with their enumerators; a number that has none stays a number.
auto page = read<Break>(u"even-page");         // Break "even-page" = EvenPage | EvenPage
auto unknown = TXmlAttribute<Break>(Break(2)); // Break 2
auto strength = read<Keep>(u"7");              // Keep 7
auto printed = read<BarcodeValueType>(u"HEX"); // BarcodeValueType "HEX" = Hex | Hex
auto variant = read<Core::Variant::VariantType>(
    u"STRINGVALUE"); // Core::Variant::VariantType "StringValue" = StringValue | StringValue

// Lists.
auto dashes = read<Core::Vector<SLength>>(u"1,2 3pt"); // Core::Vector<SLength> of 3 = {1, 2, 3pt}
auto noDashes = read<Core::Vector<SLength>>(u"none");  // Core::Vector<SLength> of 0 | {}
auto polygon = read<Core::Vector<Point>>(u"1,2 3,4");  // Core::Vector<Point> of 2 = {1,2, 3,4}
auto path = read<Path>(u"M1,2 l3-4 h5 V6z");        // Core::Vector<PathDataCommand> of 5 = {M 1 2, l 3 -4, h 5, V 6, Z}
auto curves = read<Path>(u"C1 2 3 4 5 6 s1 2 3 4"); // Core::Vector<PathDataCommand> of 2 = {C 1 2 3 4 5 6, s 1 2 3 4}
auto moreCurves = read<Path>(
    u"Q1 2 3 4 t1 2 a1,1 0 01 3,4"); // Core::Vector<PathDataCommand> of 3 = {Q 1 2 3 4, t 1 2, a 1 1 0 0 1 3 4}
auto moves = read<Moves>(
    u"matrix(1 0 0 1 .5 0) translate(1,2)"); // Core::Vector<Transform> of 2 = {matrix(1,0,0,1,0.5,0), translate(1,2)}
auto turns = read<Moves>(
    u"scale(2) rotate(45,1,2) skewX(3)"); // Core::Vector<Transform> of 3 = {scale(2,2), rotate(45,1,2), skewX(3)}

// Values without an attribute.
Length plain(0.1f, Length::Em);  // 0.1em
Core::String text(u"caf\u00e9"); // "café"
SmartPtr<Drawing::SpotColorFunction> blend =
    Drawing::SpotColorFunction::parseColorFunctionString(u"rgb(3,2,1)"); // rgb(255,255,255) to rgb(3,2,1)
Color red(new Drawing::RGBColor(255, 0, 0));                             // rgb(255,0,0)
TabStop tab(Length(3, Length::Cm), TabStopType::Right, {});              // 3cm Right None
Drawing::RectF rectangle(1, 2, 3, 4);                                    // rect(1px, 2px, 3px, 4px)
BorderWidth const& reference = *thick;                                   // "thick" = 5pt

// An attribute of every value type, called by its line in the list of them.
struct {
#define XMLATTR_JOINED(a, b) a##b
#define XMLATTR_ON_LINE(number, ...) TXmlAttribute<__VA_ARGS__> XMLATTR_JOINED(line, number);
#define XMLATTR_PUBLIC_VALUE(...) XMLATTR_ON_LINE(__LINE__, __VA_ARGS__)
#define XMLATTR_INTERNAL_VALUE(...)
#include "xmlattr/ValueTypes.inc"
} everyAttribute;

// Nothing in it is true.
union Broken {
    std::uintptr_t words[8] = {16, 16, 96, 96, 16, 16, 16, 16};
    TXmlAttribute<Url> url;
    TXmlAttribute<Color> color;
    TXmlAttribute<Core::Vector<Point>> list;
    Broken() {}
    ~Broken() {}
} broken;

int main() {
    return 0;
}
