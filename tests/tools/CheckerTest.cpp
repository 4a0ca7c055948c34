#include "CheckDocument.h"
#include "checking/VerdictCache.h"

#include <gtest/gtest.h>

namespace Command {
namespace {

using namespace std::string_literals;

std::string const svg = "<svg xmlns='http://www.w3.org/2000/svg' ";
std::string const block = "<block xmlns='http://www.w3.org/1999/XSL/Format' ";

// Read, passed over, free text, misread, lenient, refused, and not covered: foreign, templates, unread, unknown.
std::string classesOf(Counts const& counts) {
    std::string classes;
    for (std::uint64_t const count : {counts.read, counts.passedOver, counts.freeText, counts.misread, counts.lenient,
                                      counts.refused, counts.foreign, counts.templates, counts.unread, counts.unknown})
        classes += std::to_string(count) + " ";
    return classes;
}

TEST(Checker, CountsEachAttributeInOneClass) {
    struct Row {
        std::string document;
        char const *classes, *refused;
    };
    for (Row const& row :
         {Row{block + "break-before='page' span='from-parent(span)' id='a' hyphenate='true'/>", "2 1 1 0 0 0 0 0 0 0 ",
              ""},
          Row{block + "break-before='' span='al' nope='x' x:span='al' xmlns:x='urn:x'/>", "0 0 0 0 0 2 1 0 0 1 ",
              "break-before span nope "},
          Row{block + "space-before='0.0' space-after='-0' color='0.0' span='0.0' orphans='0.0'/>",
              "0 1 0 1 0 3 0 0 0 0 ", "space-before color span orphans "},
          Row{"<x:b xmlns:x='urn:x' span='al'><b span='al'/></x:b>", "0 0 0 0 0 0 2 0 0 0 ", ""},
          Row{"<svg width='q'><g style='fill:q' x:fill='q' xmlns:x='urn:x'/></svg>", "0 0 1 0 0 2 1 0 0 0 ",
              "width fill "},
          Row{"<html><svg width='q'/></html>", "0 0 0 0 0 0 1 0 0 0 ", ""},
          Row{svg + "xml:lang='de' xml:space='q' xmlns:l='http://www.w3.org/1999/xlink' l:show='q'/>",
              "1 0 0 0 0 2 0 0 0 0 ", "xml:space xlink:show "},
          Row{block + "xmlns:t='http://www.w3.org/1999/XSL/Transform' span='{al}' orphans='{{' widows='{'/>",
              "0 0 0 0 0 1 0 2 0 0 ", "orphans "},
          Row{svg + "style='FILL:red;width:1;nope:2'/>", "1 0 1 0 0 0 0 0 0 2 ", "nope "}}) {
        Outcome const outcome = checkDocument(row.document);
        EXPECT_EQ(outcome.failure, "") << row.document;
        EXPECT_EQ(classesOf(outcome.counts), row.classes) << row.document;
        EXPECT_EQ(outcome.attributes, row.refused) << row.document;
    }
}

TEST(VerdictCache, AsksOnceForEachShortText) {
    using namespace Xml;
    VerdictCache cache;
    int asked = 0;
    auto const asks = [&](CatalogueEntry const& entry, Notation notation, std::string const& text, Verdict verdict) {
        int const before = asked;
        EXPECT_EQ(cache.find(entry, notation, text, [&] { return ++asked, verdict; }), verdict) << text;
        return asked > before;
    };
    for (std::size_t length = 0; length <= 26; ++length)
        for (char const last : {'a', 'b'})
            for (char const* const attribute : {"fill", "stroke"})
                for (Notation const notation : {Notation::Attribute, Notation::Declaration}) {
                    CatalogueEntry const& entry = *Catalogue::find(Vocabulary::Svg, "g", attribute);
                    std::string const text = std::string(length, 'x') + last;
                    EXPECT_TRUE(asks(entry, notation, text, Verdict::Refused)) << text;
                    EXPECT_TRUE(asks(entry, notation, text, Verdict::Read)) << "again after a fault: " << text;
                    EXPECT_EQ(asks(entry, notation, text, Verdict::Read), text.size() > 24) << text;
                }
}

TEST(Checker, ReadsStyleAsCss) {
    struct Row {
        char const* style;
        std::uint64_t checked, passedOver, refused;
    };
    for (Row const& row :
         {Row{"fill:red/**/", 1, 0, 0}, Row{"/* a:b; */ fill /**/ :/* x */ red", 1, 0, 0},
          Row{"fill: RED /* x; */; Stroke-Linecap:BUTT", 1, 1, 0},
          Row{"fill:red !IMPORTANT; stroke:red ! important; color:red!/**/important", 3, 0, 0},
          Row{"fill:red !importunate; fill:!important", 0, 0, 2},
          Row{"font:BOLD 12px Arial; font: bold/* x */12px Arial", 2, 0, 0},
          Row{"font:BALD 12px Arial; font:BOLD", 0, 0, 2}, Row{"clip:RECT(auto, auto, auto, auto)", 0, 1, 0},
          Row{"marker-start:url(a/*;b);fill:URL(#a;b)", 1, 1, 0}, Row{"fill:re/**/d; fill:red blue; fill:#12", 0, 0, 3},
          Row{"font-family:\"a;/*b\"; fill:q; stroke:q /* ", 1, 0, 2}}) {
        Counts const counts = checkDocument(svg + "style='" + row.style + "'/>").counts;
        EXPECT_EQ(counts.read, row.checked) << row.style;
        EXPECT_EQ(counts.passedOver, row.passedOver) << row.style;
        EXPECT_EQ(counts.refused, row.refused) << row.style;
        EXPECT_EQ(counts.declarations, row.checked + row.passedOver + row.refused) << row.style;
    }
    EXPECT_EQ(checkDocument(svg + "stroke-linecap='BUTT' font='BOLD 12px A'/>").counts.refused, 2)
        << "an attribute has a case";
}

TEST(Checker, JudgesTheValuesOfAnimations) {
    struct Row {
        char const *animation, *messages;
    };
    for (Row const& row :
         {Row{"animate attributeName='r' from='1pt' to=' 2 ' by='-3' values='1;2; 3;'", ""},
          Row{"animate attributeName='r' values='1;-3; 4 ;x'",
              "79 values=\"-3\" on animate is negative, but the formatter takes it\n"
              "86 values=\"x\" on animate is not legal; expected a number with or without a unit (px, pt, pc, cm, mm, "
              "in, "
              "em, ex) or a percentage\n"},
          Row{"animate attributeName='r' additive='sum' from='-3' to='x'",
              "98 to=\"x\" on animate is not legal; expected a number with or without a unit (px, pt, pc, cm, mm, in, "
              "em, "
              "ex) or a percentage\n"},
          Row{"animate attributeName='d' to='M0 0L.5.5'",
              "73 to=\"M0 0L.5.5\" on animate: \".5\" is read as 0; write \"M0 0L.5 .5\"\n"},
          Row{"animate attributeName='x' from='1 2' to='1,5'", ""}, // on a text
          Row{"set attributeName='fill' to='bleu'", "72 to=\"bleu\" on set is not legal; write \"blue\"\n"},
          Row{"animateColor attributeName='fill' from='RED' to='None'", ""}, // as in CSS
          Row{"animate attributeName='fill' attributeType='XML' to='None'",
              "96 to=\"None\" on animate is read as none; write \"none\"\n"},
          Row{"animateTransform type='rotate' from='0' to='360,12 12' by='5'", ""},
          Row{"animateTransform type='rotate' values='0;1 2'",
              "84 values=\"1 2\" on animateTransform: expected one number or three\n"},
          Row{"animateTransform from='0 1' to='1deg'",
              "75 to=\"1deg\" on animateTransform: expected one number or two\n"},
          Row{"animateMotion from='0,0' to='1pt 5%' values='0-5;1'",
              "92 values=\"1\" on animateMotion: expected two coordinates\n"},
          Row{"animate to='q'", ""}, Row{"animate attributeName='q' to='q'", ""},
          Row{"animateTransform type='{q}' to='q' xmlns:t='http://www.w3.org/1999/XSL/Transform'", ""},
          Row{"set attributeName='class' to='q'", ""}}) {
        Outcome const outcome = checkDocument(svg + "><" + row.animation + "/></svg>");
        EXPECT_EQ(outcome.messages, row.messages) << row.animation;
        EXPECT_EQ(outcome.counts.read + outcome.counts.passedOver + outcome.counts.freeText + outcome.counts.misread +
                      outcome.counts.lenient + outcome.counts.refused + outcome.counts.unknown +
                      outcome.counts.templates,
                  outcome.counts.attributes)
            << row.animation;
    }
}

TEST(Checker, TellsEachPartOfAShorthandThatIsWrong) {
    EXPECT_NE(checkDocument(block + "border='q 1 x'/>").messages.find("\"q\", \"1\" and \"x\" are not legal"),
              std::string::npos);
    EXPECT_NE(checkDocument(block + "padding='1pt -2pt'/>").messages.find("\"-2pt\" is negative"), std::string::npos)
        << "no difference";
}

TEST(Checker, TellsNamespacesThatAreNearlyKnown) {
    std::string const hint = ", of which nothing is checked; did you mean \"http://www.w3.org/";
    EXPECT_EQ(checkDocument("<svg xmlns='http://www.w3.org/2000/svg' xmlns:x='http://www.w3.org/1999/xlinks'>"
                            "<g x:href='#a' x:title='a'/><s:g xmlns:s='http://www.w3.org/2000/SVG'/>"
                            "<h xmlns='http://www.w3.org/1999/xhtml'/></svg>")
                  .messages,
              "84 x:href on g is in the namespace \"http://www.w3.org/1999/xlinks\"" + hint + "1999/xlink\"?\n" +
                  "109 s:g is in the namespace \"http://www.w3.org/2000/SVG\"" + hint + "2000/svg\"?\n")
        << "once each";
    EXPECT_EQ(checkDocument("<f:block xmlns:f='http://www.w3.org/1999/XSL/Format' f:span='all'/>").messages,
              "54 f:span on f:block is no known attribute; did you mean \"span\"?\n");
}

TEST(Checker, TellsWhatIsNoDeclaration) {
    struct Row {
        char const *style, *messages;
    };
    for (Row const& row :
         {Row{"fill red; stroke: blue", "52 style=\"fill red\" on g is no declaration: it has no colon\n"},
          Row{" fill=red", "53 style=\"fill=red\" on g is no declaration: it has no colon\n"},
          Row{"fill:red;/*x*/a/*y*/", "66 style=\"a\" on g is no declaration: it has no colon\n"},
          Row{":red", "52 style=\":red\" on g is no declaration: no name stands before its colon\n"},
          Row{"points: 1 2", "52 points on g is no known property\n"},
          Row{"fil:red", "52 fil on g is no known property; did you mean \"fill\"?\n"}, Row{"; ;/* x */;", ""}}) {
        Outcome const outcome = checkDocument(svg + "><g style='" + row.style + "'/></svg>");
        EXPECT_EQ(outcome.messages, row.messages);
    }
    Outcome const outcome = checkDocument("<!DOCTYPE svg SYSTEM 'x.dtd'>" + svg + "style='fill&colon;red'/>");
    EXPECT_EQ(outcome.messages, "") << "an entity may have the colon";
    EXPECT_EQ(outcome.counts.unread, 1u);
}

TEST(Checker, ShowsWhatTheDocumentHas) {
    for (auto const& [document, excerpts] :
         {std::pair{svg + "width='1&#32;q' nope='' style='fill:q;fil : red'/>", "1&#32;q|nope|q|fil|"},
          {"<f:blok xmlns:f='http://www.w3.org/1999/XSL/Format'/>", "f:blok|"}})
        EXPECT_EQ(checkDocument(document).excerpts, excerpts) << document;
}

TEST(Checker, FollowsResultsWithinAFilter) {
    Outcome const outcome =
        checkDocument(svg + "xmlns:x='urn:x'><filter><feTile in='a'/><feTile in='a' result='b' x:result='c'/>"
                            "<feBlend in='b' in2='c'/><feTile in='SourceAlpha'/></filter><feTile in='d'/>"
                            "<filter><feTile in='b'/></filter></svg>");
    EXPECT_EQ(outcome.excerpts, "a|a|c|b|") << outcome.messages;
    EXPECT_EQ(outcome.attributes, "in in in2 in ");
}

TEST(Checker, JudgesWhatStylesheetsMake) {
    struct Row {
        char const *content, *messages;
        std::uint64_t templates = 0;
    };
    for (Row const& row :
         {Row{"<f:block><x:attribute name='span' select='al'/></f:block>", ""},
          Row{"<f:block><x:attribute name='span'>al</x:attribute></f:block>", "35 span=\"al\" on f:block"},
          Row{"<x:element name='f:block'><x:attribute name='span'>al</x:attribute></x:element>",
              "52 span=\"al\" on f:block"},
          Row{"<x:attribute-set><x:attribute name='span'>al</x:attribute></x:attribute-set>",
              "43 span=\"al\" on x:attribute-set"},
          Row{"<x:template><x:attribute name='span'>al</x:attribute></x:template>", "38 span=\"al\" on x:attribute"},
          Row{"<x:element name='f:blok'/>", "12 f:blok is not an element of XSL-FO 1.1; did you mean \"f:block\"?"},
          Row{"<x:element name='blok' namespace='http://www.w3.org/1999/XSL/Format'/>",
              "12 blok is not an element of XSL-FO 1.1; did you mean \"block\"?"},
          Row{"<x:element name='f:{a}'/><x:element name='blok'/>", ""},
          Row{"<x:attribute name='span'>{a}</x:attribute>", "26 span=\"{a}\" on x:attribute"},
          Row{"<x:attribute name='span' expand-text='yes'>{a}</x:attribute>", "", 1},
          Row{"<f:block x:expand-text=' 1 '><x:attribute name='span'>{a}</x:attribute></f:block>", "", 1},
          Row{"<f:block expand-text='yes'><x:attribute name='span'>{a}</x:attribute></f:block>",
              "10 expand-text on f:block is no known attribute"},
          Row{"<x:template expand-text='true'><x:if expand-text='no'><x:attribute name='span'>{a}</x:attribute></x:if>"
              "<x:attribute name='span'>{a}</x:attribute></x:template>",
              "80 span=\"{a}\" on x:attribute", 1},
          Row{"<x:template expand-text='yes'/><x:attribute name='span'>{a}</x:attribute>",
              "57 span=\"{a}\" on x:attribute"},
          Row{"<x:attribute name='span' expand-text='yes'>{{a}}</x:attribute>", "44 span=\"{a}\" on x:attribute"}}) {
        Outcome const outcome = checkDocument(
            "<x:stylesheet xmlns:x='http://www.w3.org/1999/XSL/Transform' xmlns:f='http://www.w3.org/1999/XSL/Format'>\n"s +
            row.content + "</x:stylesheet>");
        EXPECT_EQ(outcome.messages.substr(0, std::string_view(row.messages).size()), row.messages) << row.content;
        EXPECT_EQ(outcome.messages.empty(), *row.messages == 0) << row.content << outcome.messages;
        EXPECT_EQ(outcome.counts.templates, row.templates) << row.content;
    }
}

TEST(Checker, RefusesNoTextOfWhichAPartIsNotRead) {
    struct Row {
        std::string document;
        std::uint64_t unread;
        char const* refused;
    };
    std::string const dtd = "<!DOCTYPE svg SYSTEM 'x.dtd' [<!ENTITY q 'q'><!ENTITY i 'i&o;'>]>";
    for (Row const& row :
         {Row{"<!DOCTYPE svg SYSTEM 'x.dtd'>" + svg + "width='&w;' height='&w;px' x='q&#113;' y='q'/>", 2, "x y "},
          Row{"<!DOCTYPE svg PUBLIC 'p' 'x.dtd'>" + svg + "style='fill:&w;;stroke:q'/>", 2, ""},
          Row{"<!DOCTYPE svg [<!ENTITY % p ''>%p;]>" + svg + "width='q&w;' height='&lt;'/>", 1, "height "},
          Row{dtd + svg + "width='&q;' height='&i;' x='&q;&w;' y='1&w;'/>", 2, "width "},
          Row{"<!DOCTYPE x:t SYSTEM 'x.dtd'><x:t xmlns:x='http://www.w3.org/1999/XSL/Transform' "
              "xmlns:f='http://www.w3.org/1999/XSL/Format'><f:block><x:attribute name='span'>al&w;</x:attribute>"
              "</f:block></x:t>",
              0, ""},
          Row{dtd + svg + "width='q' stroke='&lt;' fill=''/>", 0, "width stroke fill "},
          Row{"<!DOCTYPE svg SYSTEM 'x.dtd' [<!ENTITY e '<g fill=\"&w;\"/>'>]>" + svg + ">&e;</svg>", 1, ""}}) {
        Outcome const outcome = checkDocument(row.document);
        EXPECT_EQ(outcome.failure, "") << row.document;
        EXPECT_EQ(outcome.counts.unread, row.unread) << row.document;
        EXPECT_EQ(outcome.attributes, row.refused) << row.document;
    }
    EXPECT_EQ(checkDocument("<!DOCTYPE svg [<!ENTITY q 'q'>]>" + svg + "width='&w;'/>").failure,
              "malformed: no well-formed XML: undefined entity");
}

std::string utf16(std::string const& text, bool isBig, bool isMarked) {
    std::string bytes = !isMarked ? "" : isBig ? "\xFE\xFF" : "\xFF\xFE";
    for (char const c : text) bytes += isBig ? std::string{'\0', c} : std::string{c, '\0'};
    return bytes;
}

TEST(Checker, CountsCodePointsInEveryEncoding) {
    auto const declared = [](std::string const& name) { return "<?xml version='1.0' encoding='" + name + "'?>"; };
    // Two characters, then an attribute, then a declaration after the same two.
    auto const faults = [](std::string const& two) {
        return "<svg id='" + two + "' x='q' style='font-family:" + two + "; fill:q'/>";
    };
    std::string const mark = "\xEF\xBB\xBF";
    struct Row {
        char const* name;
        std::string before, two;
        bool isBig = false, isUtf16 = false, isMarked = false;
    };
    for (Row const& row :
         {Row{"ASCII", "", "ab"}, Row{"UTF-8", "", "\xC3\xA9\xE2\x82\xAC"},
          Row{"UTF-8 of four bytes", "", "\xF0\x9F\x98\x80\xF0\x9F\x98\x80"}, Row{"UTF-8, marked", mark, "ab"},
          Row{"UTF-8, marked and declared", mark + declared("UTF-8"), "\xC3\xA9o"},
          Row{"US-ASCII", declared("us-ascii"), "ab"}, Row{"ISO-8859-1", declared("ISO-8859-1"), "\xE9\xFF"},
          Row{"windows-1252", declared("Windows-1252"), "\x80\xE9"}, Row{"cp1252", declared("CP1252"), "\x80\x80"},
          Row{"UTF-16LE, marked", "", "ab", false, true, true}, Row{"UTF-16BE, marked", "", "ab", true, true, true},
          Row{"UTF-16LE, declared", declared("UTF-16"), "ab", false, true, true},
          Row{"UTF-16BE, declared", declared("UTF-16"), "ab", true, true, true},
          Row{"UTF-16BE, unmarked", declared("UTF-16"), "ab", true, true}}) {
        std::string const text = row.before + faults(row.two);
        Outcome const outcome = checkDocument(row.isUtf16 ? utf16(text, row.isBig, row.isMarked) : text);
        EXPECT_EQ(outcome.failure, "") << row.name;
        std::size_t const before = row.before.size() - (row.before.starts_with(mark) ? mark.size() : 0);
        EXPECT_EQ(outcome.attributes, "x fill ") << row.name;
        EXPECT_EQ(outcome.last.column, before + faults("ab").find("fill:") + 1) << row.name;
    }
}

} // namespace
} // namespace Command
