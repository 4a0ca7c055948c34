#include "tools/reference/pages/Trials.h"

#include "tools/reference/text/Page.h"

#include "xmlattr/catalogue/text/Words.h"
#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Text.h"

#include <algorithm>

namespace Reference {

namespace {

constexpr std::size_t mostWords = 40; // that a page shows of a class; the colours have a page of their own

constexpr std::u16string_view fewTexts[] = {u"", u"0", u"inherit"};

constexpr std::u16string_view manyTexts[] = {
    u"",     u"0",    u"12",    u"-7",   u"1.5", u".5",   u"1e3",  u"50%",     u"12pt",
    u"12PT", u"12 q", u" 12pt", u"12ab", u"2em", u"auto", u"none", u"inherit",
};

struct TextRow {
    std::string_view owner; // a family or a value type
    std::u16string_view text;
};

constexpr TextRow textsOfOwners[] = {
    {"Plain values", u" 12 "},
    {"Plain values", u"16777217"},
    {"Plain values", u"2147483648"},
    {"Plain values", u"3.4028236e38"},
    {"Plain values", u"1,5"},
    {"Plain values", u"0x1F"},
    {"Drawing::RectF", u"rect(1pt,,2pt,3pt)"},
    {"Drawing::RectF", u"rect( 1pt , 2pt,3pt,0 )"},
    {"Drawing::RectF", u"rect(1pt 2pt 3pt 4pt)"},
    {"Drawing::RectF", u"Rect(1pt, 2pt, 3pt, 4pt)"},

    {"Lengths", u"1in"},
    {"Lengths", u"1cm"},
    {"Lengths", u"1mm"},
    {"Lengths", u"1pc"},
    {"Lengths", u"16px"},
    {"Lengths", u"1ex"},
    {"Lengths", u"12.34567pt"},
    {"DLength", u"1pt, 2pt"},
    {"DLength", u"1pt q"},
    {"DLength", u"q 2pt"},

    {"Length-or-percent family", u"50 %"},
    {"Length-or-percent family", u"12.34567%"},
    {"Length-or-percent family", u"AUTO"},
    {"ColumnWidth", u"proportional-column-width(1.5)"},
    {"ColumnWidth", u"proportional-column-width()"},

    {"Indent", u"body-start( )"},
    {"BorderWidth", u"THIN"},
    {"LeaderPatternWidth", u"Use-Font-Metrics"},
    {"LetterSpacing", u"Normal"},
    {"SSpacing", u"Normal"},
    {"TableWidth", u"no-such-call(50%)"},
    {"TableWidth", u"(50%)"},

    {"Fonts", u"Medium"},
    {"Fonts", u"150%"},
    {"Background and text alignment", u"Left"},
    {"Background and text alignment", u"10% 20%"},
    {"TextAlign", u","},
    {"TextAlign", u"outside"},
    {"TextAlign", u"Outside"},

    {"Colour", u"red"},
    {"Colour", u"DarkOrange"},
    {"Colour", u"WindowText"},
    {"Colour", u"transparent"},
    {"Colour", u"currentColor"},
    {"Colour", u" red"},
    {"Colour", u"#f80"},
    {"Colour", u"#FF8000"},
    {"Colour", u"#ff80"},
    {"Colour", u"rgb(300,-1,50%)"},
    {"Colour", u"rgb(1,2)"},
    {"Colour", u"RGB(1,2,3)"},
    {"Colour", u"cmyk(50%,0,0,2)"},
    {"Colour", u"rgb-icc(50%,0,0,#Gray,0.5)"},
    {"Colour", u"rgb-icc(1,2,3)"},
    {"Colour", u"spot-color(Gold)"},
    {"Colour", u"url(#paint)"},
    {"Colour", u"URL(#paint)"},

    {"Core::Vector<Transform>", u"translate(1) scale(2,3)"},
    {"Core::Vector<Transform>", u"skewY(30) turn(5)"},
    {"Core::Vector<Transform>", u"rotate(45deg)"},
    {"Core::Vector<Transform>", u"scale()"},
    {"Core::Vector<Transform>", u"scale(2"},
    {"Core::Vector<PathDataCommand>", u"M1 1l.5.5"},
    {"Core::Vector<PathDataCommand>", u"m10mm"},
    {"Core::Vector<PathDataCommand>", u"M0 0 10 10a5 5 0 0 1 9 9z"},
    {"Core::Vector<PathDataCommand>", u"M0 0H1V2h3v4"},
    {"Core::Vector<PathDataCommand>", u"M0 0s1 2 3 4q1 2 3 4t5 6"},
    {"Core::Vector<PathDataCommand>", u"M0 0a-5 5 -30 1 0 9 9 5 5 0 0 1 9 9"},
    {"Core::Vector<Point>", u"1 2 3"},
    {"Core::Vector<Point>", u"1,2,3,4"},
    {"Core::Vector<Point>", u"10,20-30,40"},
    {"ViewBox", u"0,0,100,100"},
    {"ViewBox", u"0 0 100"},
    {"ViewBox", u"1 2 3 4 5"},
    {"SPreserveAspectRatio", u"xMidYMid slice"},
    {"SPreserveAspectRatio", u"defer xMinYMax"},
    {"SPreserveAspectRatio", u"xMinYMax fit"},
    {"BoxShadow", u"2px 2px"},
    {"BoxShadow", u"red 1px 2px 3px 4px"},
    {"BoxShadow", u"1px  2px"},
    {"STextShadow", u"2px 2px"},
    {"STextShadow", u"url(#a) 1 2 3 4"},
    {"STextDecoration", u"underline overline"},
    {"STextDecoration", u"underline ,overline"},
    {"STextDecoration", u" none"},
    {"STextDecoration", u"blink"},

    {"Language", u"DE"},
    {"Language", u"eng"},
    {"Language", u"ger"},
    {"Language", u"en-US"},
    {"Language", u"de-AT"},
    {"Language", u"en_US"},

    {"InitialPageNumber", u"multiple-of(4)"},
    {"InitialPageNumber", u"multiple-of()"},
    {"InitialPageNumber", u"Auto"},
    {"InitialSheetNumber", u"Auto"},
    {"ForcePageCount", u"multiple-of(4)"},
    {"ForcePageCount", u"end-on-multiple-of(4)"},
    {"ForcePageCount", u"multiple-of()"},
    {"ForcePageCount", u"EVEN"},
    {"DisplayCondition", u"match(brand)"},
    {"DisplayCondition", u"match(x) and y"},
    {"DisplayCondition", u"is-after( x )and is-before(y)"},
    {"TPRule", u"FIND_KEYWORD( x )y"},
    {"TPRule", u"find_keyword(x)"},
    {"Url", u"url( 'a b.png' )"},
    {"Url", u"url(a.png"},
    {"Url", u"url"},
    {"Url", u"URL(a.png)"},

    {"AxisSource", u"year(date)"},
    {"AxisSource", u"years( date )"},
    {"AxisSource", u"YEAR"},
    {"Value", u"2024-02-29"},
    {"Value", u"2023-02-29"},
    {"Value", u"2020-01-31T10:20:30Z"},

    {"BarcodeValueType", u"TEXT"},
    {"Keep", u"720"},
    {"Keep", u"-1"},
    {"Keep", u"2147483648"},
    {"MaxRepeats", u"12"},
    {"MaxRepeats", u"-1"},
    {"MaxRepeats", u"3 times"},
    {"ReferenceOrientation", u"-90"},
    {"ReferenceOrientation", u"45"},
    {"ReferenceOrientation", u"360"},
    {"FontWeight", u"400"},
    {"FontWeight", u"401"},
    {"FontWeight", u"-7"},
};

std::u16string inUpperCase(std::u16string_view text) {
    std::u16string upper(text);
    for (char16_t& unit : upper)
        if (unit >= u'a' && unit <= u'z') unit = static_cast<char16_t>(unit - (u'a' - u'A'));
    return upper;
}

Trial tryText(Xml::AttributeType const& type, std::u16string_view text) {
    Xml::AnyAttribute attribute(type);
    bool const accepted = attribute.parseValue(text);
    return {std::u16string(text), accepted, attribute.isEqual(text), stateOf(attribute)};
}

} // namespace

bool State::operator==(State const& other) const {
    auto const isSame = [](Xml::Part const& a, Xml::Part const& b) { return a.name == b.name && a.value == b.value; };
    return prints == other.prints && std::ranges::equal(parts, other.parts, isSame);
}

State stateOf(Xml::AnyAttribute const& attribute) {
    State state;
    state.parts = attribute.parts().list;
    try {
        state.prints = attribute.getValueAsString().toUtf8();
    } catch (Core::UnreacheableCodeException const&) {
        state.throws = true;
    }
    return state;
}

std::string partsOf(State const& state) {
    std::string line;
    for (Xml::Part const& part : state.parts)
        line.append(line.empty() ? "" : ", ").append(narrow(part.name)).append(" ").append(codeOf(part.value));
    return line;
}

std::string printOf(State const& state) {
    return state.throws ? "throws" : codeOf(state.prints);
}

std::vector<Trial> tryTexts(Xml::AttributeType const& type, std::span<std::u16string const> texts) {
    std::vector<Trial> trials;
    for (std::u16string const& text : texts) trials.push_back(tryText(type, text));
    return trials;
}

std::vector<std::u16string> textsFor(Xml::AttributeType const& type, std::string_view family) {
    std::vector<std::u16string> texts;
    auto const add = [&](std::u16string_view text) {
        if (std::ranges::find(texts, text) == texts.end()) texts.emplace_back(text);
    };
    auto const words = type.words();
    if (type.isEnumeration() || words.size() <= mostWords)
        for (std::u16string_view const word : words) add(word);
    for (std::u16string_view const example : type.examples()) add(example);
    for (TextRow const& row : textsOfOwners)
        if (row.owner == family || row.owner == type.name()) add(row.text);
    if (type.isEnumeration()) {
        add(inUpperCase(words.front()));
        add(std::u16string(words.front()) + u' ');
    }
    if (type.isEnumeration() || type.readsAnyText())
        std::ranges::for_each(fewTexts, add);
    else
        std::ranges::for_each(manyTexts, add);
    return texts;
}

CaseRule caseRuleOf(Xml::AttributeType const& type) {
    bool isAnyExact = false, isAnyFree = false;
    // What a type makes of a text that it does not know says nothing of the case of its words.
    Trial const unknown = tryText(type, u"no-such-word");
    for (std::u16string_view const word : type.words()) {
        Trial const own = tryText(type, word);
        if (unknown.accepted && own.state == unknown.state) continue;
        for (std::u16string const& variant : {inUpperCase(word), Xml::toLower(word)}) {
            if (variant == word || !own.accepted) continue;
            Trial const other = tryText(type, variant);
            (other.accepted && other.state == own.state ? isAnyFree : isAnyExact) = true;
        }
    }
    if (isAnyExact && isAnyFree) return CaseRule::Mixed;
    return isAnyExact ? CaseRule::Exact : isAnyFree ? CaseRule::Any : CaseRule::NoWords;
}

std::vector<Change> changesByRefusal(Xml::AttributeType const& type, std::span<Trial const> trials) {
    std::vector<Change> changes;
    for (Trial const& refused : trials) {
        if (refused.accepted) continue;
        for (Trial const& before : trials) {
            Xml::AnyAttribute attribute(type);
            attribute.parseValue(before.text);
            State const held = stateOf(attribute);
            attribute.parseValue(refused.text);
            State const left = stateOf(attribute);
            if (!before.accepted || left == held) continue;
            changes.push_back({before.text, refused.text, left});
            break;
        }
    }
    return changes;
}

} // namespace Reference
