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

TXmlAttribute<AxisSource> const DefaultAxisSourceAttribute;
TXmlAttribute<BoxShadow> const DefaultBoxShadow;
TXmlAttribute<Core::String> const DefaultFontFamily(Core::Application::getStringConfigValue(u"DefaultFontFamily",
                                                                                            u"Times"));
TXmlAttribute<Core::String> const DefaultHyphenationCharacter;
TXmlAttribute<Core::String> const DefaultManagedFontFamily(Core::String(u"Segoe UI"));
TXmlAttribute<Core::String> const DefaultNumberFormat;
TXmlAttribute<Core::Vector<PathDataCommand>> const DefaultPathData;
TXmlAttribute<Core::Vector<Point>> const DefaultPointList;
TXmlAttribute<Core::Vector<SLength>> const DefaultSDashPattern;
TXmlAttribute<Core::Vector<Transform>> const DefaultTransformList;
TXmlAttribute<DisplayCondition> const DefaultDisplayConditionAttribute;
TXmlAttribute<FontSize> const DefaultFontSize(configuredFontSize());
TXmlAttribute<Language> const DefaultLanguage;
TXmlAttribute<SColor> const DefaultSColor;
TXmlAttribute<SColor> const DefaultSFillColor(SColor(rgb(0, 0, 0)));
TXmlAttribute<SColor> const DefaultSStrokeColor;
TXmlAttribute<SNullableColor> const DefaultSNullableFillColor(SNullableColor(rgb(0, 0, 0)));
TXmlAttribute<SNullableColor> const DefaultSNullableStrokeColor;
TXmlAttribute<STextShadow> const DefaultSTextShadow;
TXmlAttribute<SmartPtr<Drawing::Color>> const DefaultBackgroundColor;
TXmlAttribute<SmartPtr<Drawing::Color>> const DefaultBorderColor(rgb(0, 0, 0));
TXmlAttribute<SmartPtr<Drawing::Color>> const DefaultFillColor(rgb(0, 0, 0));
TXmlAttribute<SmartPtr<Drawing::Color>> const DefaultFormControlBorderColor(rgb(112, 112, 112));
TXmlAttribute<SmartPtr<Drawing::Color>> const DefaultGradientStopColor;
TXmlAttribute<SmartPtr<Drawing::Color>> const DefaultManagedBackground(rgb(255, 255, 255));
TXmlAttribute<SmartPtr<Drawing::Color>> const DefaultManagedStrokeColor(rgb(0, 0, 0));
TXmlAttribute<SmartPtr<Drawing::Color>> const DefaultStrokeColor;
TXmlAttribute<TPRule> const DefaultTPRuleAttribute;
TXmlAttribute<TextAlign> const DefaultTextAlign;
TXmlAttribute<Url> const DefaultUrl;
TXmlAttribute<Value> const DefaultMaxValue(Value(2147483648.0f));
TXmlAttribute<Value> const DefaultMinValue(Value(-2147483648.0f));
TXmlAttribute<Value> const DefaultValue;

} // namespace Xml
