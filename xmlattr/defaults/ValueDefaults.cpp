// The defaults that are built when the library is loaded: line order is the order of building.
#include "xmlattr/core/Application.h"
#include "xmlattr/defaults/DefaultAttributes.h"

namespace Xml {

namespace {

SmartPtr<Drawing::Color> rgb(unsigned char r, unsigned char g, unsigned char b) {
    return new Drawing::RGBColor(r, g, b);
}

FontSize configuredFontSize() {
    int const points = Core::Application::getIntConfigValue(u"DefaultFontSize", 10);
    return LengthOrPercent(Length(static_cast<float>(points), Length::Pt));
}

} // namespace

const TXmlAttribute<AxisSource> DefaultAxisSourceAttribute;
const TXmlAttribute<BoxShadow> DefaultBoxShadow;
const TXmlAttribute<Core::String> DefaultFontFamily(Core::Application::getStringConfigValue(u"DefaultFontFamily", u"Times"));
const TXmlAttribute<Core::String> DefaultHyphenationCharacter(Core::String(u"\u2010"));
const TXmlAttribute<Core::String> DefaultManagedFontFamily(Core::String(u"Segoe UI"));
const TXmlAttribute<Core::String> DefaultNumberFormat(Core::String(u"1"));
const TXmlAttribute<Core::Vector<PathDataCommand>> DefaultPathData;
const TXmlAttribute<Core::Vector<Point>> DefaultPointList;
const TXmlAttribute<Core::Vector<SLength>> DefaultSDashPattern;
const TXmlAttribute<Core::Vector<Transform>> DefaultTransformList;
const TXmlAttribute<DisplayCondition> DefaultDisplayConditionAttribute;
const TXmlAttribute<FontSize> DefaultFontSize(configuredFontSize());
const TXmlAttribute<Language> DefaultLanguage;
const TXmlAttribute<SColor> DefaultSColor;
const TXmlAttribute<SColor> DefaultSFillColor(SColor(rgb(0, 0, 0)));
const TXmlAttribute<SColor> DefaultSStrokeColor;
const TXmlAttribute<SNullableColor> DefaultSNullableFillColor(SNullableColor(rgb(0, 0, 0)));
const TXmlAttribute<SNullableColor> DefaultSNullableStrokeColor;
const TXmlAttribute<STextShadow> DefaultSTextShadow;
const TXmlAttribute<SmartPtr<Drawing::Color>> DefaultBackgroundColor;
const TXmlAttribute<SmartPtr<Drawing::Color>> DefaultBorderColor(rgb(0, 0, 0));
const TXmlAttribute<SmartPtr<Drawing::Color>> DefaultFillColor(rgb(0, 0, 0));
const TXmlAttribute<SmartPtr<Drawing::Color>> DefaultFormControlBorderColor(rgb(112, 112, 112));
const TXmlAttribute<SmartPtr<Drawing::Color>> DefaultGradientStopColor(rgb(0, 0, 0));
const TXmlAttribute<SmartPtr<Drawing::Color>> DefaultManagedBackground(rgb(255, 255, 255));
const TXmlAttribute<SmartPtr<Drawing::Color>> DefaultManagedStrokeColor(rgb(0, 0, 0));
const TXmlAttribute<SmartPtr<Drawing::Color>> DefaultStrokeColor;
const TXmlAttribute<TPRule> DefaultTPRuleAttribute;
const TXmlAttribute<TextAlign> DefaultTextAlign(TextAlign(TextAlignType::Start, {}));
const TXmlAttribute<Url> DefaultUrl;
const TXmlAttribute<Value> DefaultMaxValue(Value(2147483648.0f));
const TXmlAttribute<Value> DefaultMinValue(Value(-2147483648.0f));
const TXmlAttribute<Value> DefaultValue;

} // namespace Xml
