// Any text for any value type: the promises of Promises.h hold, and all that read or compare the text agree. What
// stands before the first U+001F in it, if that occurs, is the text of the value that the attribute holds before.
#include "FuzzText.h"
#include "Heads.h"
#include "hostile/Promises.h"
#include "xmlattr/catalogue/DefaultConstant.h"
#include "xmlattr/catalogue/grammar/SvgLists.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <type_traits>

namespace {

using namespace Xml;

// The reader that a class has beside its traits.
template <class T> constexpr std::nullptr_t classReader = nullptr;
template <> constexpr auto classReader<ColumnWidth> = ColumnWidth::parseColumnWidth;
template <> constexpr auto classReader<ContentLength> = ContentLength::parseContentLength;
template <> constexpr auto classReader<Core::Vector<Point>> = Point::parsePointList;
template <>
constexpr auto classReader<ForcePageCount> =
    [](ForcePageCount& value, Core::String const& text) { return ForcePageCount::parse(text, value); };
template <>
constexpr auto classReader<BoxShadow> =
    [](BoxShadow& value, Core::String const& text) { return value.readFromString(text); };
template <> constexpr auto classReader<Length> = Length::parseLength;
template <> constexpr auto classReader<LengthOrPercentAuto> = LengthOrPercentAuto::parseLengthOrPercentAuto;
template <> constexpr auto classReader<Margin> = Margin::parseMargin;
template <> constexpr auto classReader<SColor> = SColor::parseSColor;
template <> constexpr auto classReader<SLength> = SLength::parseSLength;
template <> constexpr auto classReader<SLengthOrPercent> = SLength::parseSLengthOrPercent;
template <> constexpr auto classReader<TPRule> = TPRule::parseRule;
template <> constexpr auto classReader<TableWidth> = TableWidth::parseTableWidth;
template <>
constexpr auto classReader<Drawing::ImageFilter> = [](Drawing::ImageFilter& value, Core::String const& text) {
    return Drawing::ImageFilter::parseFilter(value, text);
};
template <>
constexpr auto classReader<InitialPageNumber> =
    [](InitialPageNumber& value, Core::String const& text) { return InitialPageNumber::parse(text, value); };
template <>
constexpr auto classReader<Language> =
    [](Language& value, Core::String const& text) { return Language::parseLanguage(text, value); };
template <>
constexpr auto classReader<LengthOrPercent> = [](LengthOrPercent& value, Core::String const& text) {
    return LengthOrPercent::parseLengthOrPercent(value, text, false);
};
template <>
constexpr auto classReader<STextShadow> =
    [](STextShadow& value, Core::String const& text) { return value.readFromString(text); };

// The reader that a class has for its words alone.
template <class T> constexpr std::nullptr_t wordReader = nullptr;
template <> constexpr auto wordReader<BackgroundPosition> = BackgroundPosition::readStringBackgroundPosition;
template <> constexpr auto wordReader<BackgroundSize> = BackgroundSize::readStringBackgroundSize;
template <> constexpr auto wordReader<PageDimension> = PageDimension::readStringPageDimension;

template <class T> bool isSame(T const& a, T const& b) {
    return (!Promises::equalsItself(a) || a == b) &&
           TXmlAttribute<T>(a).getValueAsString() == TXmlAttribute<T>(b).getValueAsString();
}

// What else the classes promise of a text and of the value that it gives; the overloads say it of those that have more.
template <class T> char const* classDisagrees(T const&, Core::String const&) {
    return nullptr;
}

char const* classDisagrees(Language const& language, Core::String const&) {
    Language back;
    bool const isRead = AttributeTraits<Language>::parse(back, Language::getISO639LanguageName(language));
    return isRead && back == language ? nullptr : "the code of a language is that of another";
}

char const* classDisagrees(Length const& length, Core::String const&) {
    if (!std::isfinite(length.pxSize())) return nullptr;
    if ((length - length).getSize() != 0) return "a length without itself is not 0";
    if (length.getUnit() == Length::Pc) return nullptr; // pica multiply both ways
    bool const isSame =
        std::abs((length + Length()).getSize() - length.getSize()) <= 1e-5f * std::abs(length.getSize()) + FLT_MIN;
    return isSame ? nullptr : "a length and nothing is another length";
}

char const* classDisagrees(Core::Vector<Point> const& points, Core::String const&) {
    Core::Vector<Point> copy = points;
    bool const isSame = Point::getPointListValueAsString(copy) == AttributeTraits<Core::Vector<Point>>::print(points);
    return isSame ? nullptr : "the class prints otherwise than the attribute";
}

// A transform that a list reads as it is meant reads the same by itself, without its ")".
char const* classDisagrees(Core::Vector<Transform> const& transforms, Core::String const& text) {
    bool const isAlone = transforms.size() == 1 && Core::isLetter(text[0]) && text.endsIn(u")");
    if (!isAlone || compare(text, transforms).outcome != SvgReading::Outcome::Same) return nullptr;
    Core::String const alone = text.subString(0, text.length() - 1);
    return Transform::readTransform(alone) == transforms.front() ? nullptr : "a transform by itself is another one";
}

char const* classDisagrees(Value const& value, Core::String const& text) {
    if (value.getStringValue() != text) return "a datum does not keep its text";
    if (value < value || value > value || !(value == value)) return "a datum is not equal to itself";
    Value again;
    AttributeTraits<Value>::parse(again, value.getValue());
    bool const isSameDay = value.getType() == ValueType::Date && again.getValue() == value.getValue();
    return again.getType() == value.getType() && (isSameDay || again == value) ? nullptr
                                                                               : "a datum is not what it prints";
}

char const* classDisagrees(SmartPtr<Drawing::Color> const& color, Core::String const& text) {
    ColorParse::Target byForm;
    bool const isRead = text.startsWith(u"#")            ? ColorParse::parseHexaColor(text, &byForm)
                        : text.startsWith(u"rgb-icc")    ? ColorParse::parseICCColor(text, &byForm)
                        : text.startsWith(u"rgb")        ? ColorParse::parseRGB(text, &byForm)
                        : text.startsWith(u"cmyk")       ? ColorParse::parseCMYKString(text, &byForm)
                        : text.startsWith(u"spot-color") ? ColorParse::parseSpotColor(text, &byForm)
                                                         : ColorParse::parseColorName(text, &byForm);
    Core::String const printed = ColorParse::getColorAsString(color);
    if (!isRead || byForm.getValueAsString() != printed) return "the reader of its form reads another colour";
    if (!color) return nullptr;
    SmartPtr<Drawing::Color> const clone = color->clone();
    return clone != color && ColorParse::getColorAsString(clone) == printed ? nullptr : "a clone is another colour";
}

// The other readers of a type, compared with its own.
template <class T> char const* readersDisagree(Core::String const& text) {
    T value{}, other{};
    bool const accepted = AttributeTraits<T>::parse(value, text);
    if constexpr (requires { AttributeTraits<T>::parseReference(other, text); }) {
        if (AttributeTraits<T>::parseReference(other, text) != accepted || !isSame(value, other))
            return "the fast path and the reference disagree";
    }
    if constexpr (!std::is_null_pointer_v<std::remove_cv_t<decltype(classReader<T>)>>) {
        if (classReader<T>(other, text) != accepted || (accepted && !isSame(value, other)))
            return "the class reads otherwise than the attribute";
    }
    if constexpr (!std::is_null_pointer_v<std::remove_cv_t<decltype(wordReader<T>)>>) {
        if (wordReader<T>(other, text) && (!accepted || !isSame(value, other)))
            return "the class reads a word otherwise than the attribute";
    }
    return accepted ? classDisagrees(value, text) : nullptr;
}

bool isSame(Parts const& a, Parts const& b) {
    return a.rgb == b.rgb && std::ranges::equal(a.list, b.list, [](Part const& left, Part const& right) {
               return left.name == right.name && left.value == right.value;
           });
}

// The type without its class, compared with the class; and the constants that programs compare texts with.
template <class T>
char const* anyDisagrees(AttributeType const& type, Core::String const& before, Core::String const& text) {
    TXmlAttribute<T> attribute;
    AnyAttribute any(type);
    attribute.parseValue(before);
    any.parseValue(before);
    AnyAttribute copy = any;
    bool const accepted = attribute.parseValue(text);
    if (any.parseValue(text) != accepted || type.accepts(text) != accepted) return "acceptance depends on the caller";
    if (any.getValueAsString() != attribute.getValueAsString()) return "the print depends on the caller";
    auto const words = type.words();
    bool const isWord = std::ranges::find(words, std::u16string_view(text)) != words.end();
    if (type.isEnumeration() && isWord && !accepted) return "a keyword is refused";
    copy = any;
    if (!isSame(copy.parts(), any.parts())) return "a copy consists of something else";
    if ((copy == any) != (any == any)) return "a copy is not equal";

    TXmlAttribute<T> fresh;
    bool const isRead = fresh.parseValue(text);
    for (DefaultConstant const& constant : DefaultConstant::all()) {
        if (&constant.type() != &type) continue;
        auto const& value = static_cast<TXmlAttribute<T> const&>(*constant);
        if (value.isEqual(text, int_to_type<1>()) !=
            (isRead && AnyAttribute(type, *constant) == AnyAttribute(type, fresh)))
            return "a constant equals a text but not its value";
    }
    return nullptr;
}

template <class T>
char const* disagreement(AttributeType const& type, Core::String const& before, Core::String const& text) {
    char const* const readers = readersDisagree<T>(text);
    return readers ? readers : anyDisagrees<T>(type, before, text);
}

// By the number of the type.
constexpr decltype(&disagreement<int>) disagreements[] = {
#define XMLATTR_PUBLIC_VALUE(...) disagreement<__VA_ARGS__>,
#define XMLATTR_INTERNAL_VALUE(...) XMLATTR_PUBLIC_VALUE(__VA_ARGS__)
#include "xmlattr/ValueTypes.inc"
};

} // namespace

static_assert(std::size(Promises::types) <= 256, "the first byte of an input picks the type");

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < Heads::Type::size) return 0;
    std::size_t const number = Heads::Type::ofBytes(data).number;
    AttributeType const& type = AttributeType::all()[number];
    Core::String text(toText(data + Heads::Type::size, data + size)), before;
    if (int const separator = text.find(u"\x1F"); separator >= 0) {
        before = text.subString(0, separator);
        text = text.subString(separator + 1);
    }
    char const* broken = Promises::types[number].broken(before, text);
    if (!broken) broken = disagreements[number](type, before, text);
    if (broken) {
        std::fprintf(stderr, "%s: %s\nbefore: \"%s\"\ntext: \"%s\"\n", std::string(type.name()).c_str(), broken,
                     before.toUtf8().c_str(), text.toUtf8().c_str());
        std::abort();
    }
    return 0;
}
