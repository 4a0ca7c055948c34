#include "checking/Stylesheet.h"

#include <gtest/gtest.h>

namespace Command {
namespace {

TEST(Stylesheet, TellsTemplatesFromTexts) {
    struct Row {
        char const* text;
        bool isTemplate;
        char const* plain;
    };
    for (Row const& row :
         {Row{"", false, ""}, Row{"10pt", false, "10pt"}, Row{"{$a}", true, ""}, Row{"1{", true, ""},
          Row{"{{a}}", false, "{a}"}, Row{"{{{$a}}}", true, ""}, Row{"{{{{", false, "{{"}, Row{"a}", false, "a}"}}) {
        EXPECT_EQ(isTemplate(row.text), row.isTemplate) << row.text;
        if (!row.isTemplate) {
            EXPECT_EQ(templateText(row.text), row.plain) << row.text;
        }
    }
}

// What each wanted text of a stylesheet is: "fo:block@color=red 3:4;".
class Recorder final : public XmlHandler {
public:
    void startElement(XmlElement const& element, Tag& tag) override { stylesheet.startElement(element, tag); }
    bool wantsText(XmlElement const& element) override { return stylesheet.isMade(element); }
    void text(XmlText const& text) override {
        std::optional<MadeAttribute> const& made = stylesheet.made();
        ASSERT_TRUE(made);
        all += std::string(Xml::Catalogue::name(made->vocabulary)) + ":" + made->element + "@" + made->attribute + "=" +
               std::string(text.text) + (text.isWhole ? " " : "? ") + std::to_string(text.place.line) + ":" +
               std::to_string(text.place.column) + ";";
    }

    Stylesheet stylesheet;
    std::string all;
};

std::string madeIn(std::string const& content,
                   std::string const& declarations = "xmlns:f='http://www.w3.org/1999/XSL/Format'",
                   std::string const& before = "") {
    std::string const document = before + "<t:stylesheet xmlns:t='http://www.w3.org/1999/XSL/Transform' " +
                                 declarations + ">\n" + content + "</t:stylesheet>";
    MemorySource source(document);
    Recorder recorder;
    if (auto const failure = readXml(source, recorder)) return failure->message;
    return recorder.all;
}

std::string attribute(std::string const& name, std::string const& content) {
    return "<t:attribute name='" + name + "'>" + content + "</t:attribute>";
}

TEST(Stylesheet, TellsTheAttributesThatItMakes) {
    std::string const svg = "xmlns='http://www.w3.org/2000/svg' xmlns:l='http://www.w3.org/1999/xlink'";
    std::string const dtd = "<!DOCTYPE t:stylesheet SYSTEM 'x.dtd' [<!ENTITY pt '1pt'>]>";
    EXPECT_EQ(madeIn("<f:block>" + attribute("color", "red") + "</f:block>"), "fo:block@color=red 2:36;");
    EXPECT_EQ(madeIn("<f:block><t:if>" + attribute("color", "\r\n \t\xC3\xA9\n") + "</t:if></f:block>"),
              "fo:block@color=\n \t\xC3\xA9\n 3:3;");
    EXPECT_EQ(madeIn("<f:block><x/>" + attribute("color", "red") + "</f:block>"), "fo:block@color=red 2:40;");
    EXPECT_EQ(madeIn("<f:block><x>" + attribute("color", "red") + "</x></f:block>"), "") << "of a foreign element";
    EXPECT_EQ(madeIn("<t:attribute-set>" + attribute("space", "1pt") + attribute("xml:space", "<![CDATA[a]]>b") +
                     "</t:attribute-set>"),
              "fo:@space=1pt 2:44;fo:@xml:space=ab 2:100;");
    EXPECT_EQ(madeIn(attribute("x", "1"), ""), "") << "no vocabulary";
    EXPECT_EQ(madeIn("<t:element name='f:inline'>" + attribute("color", "") + "</t:element>"),
              "fo:inline@color= 2:54;");
    EXPECT_EQ(madeIn("<t:element name='{$a}'>" + attribute("color", "red") + "</t:element>"), "");
    EXPECT_EQ(
        madeIn("<g>" + attribute("l:href", "#a") + attribute("{name()}", "a") + attribute("x:y", "z") + "</g>", svg),
        "svg:g@xlink:href=#a 2:31;svg:g@y=z 2:115;")
        << "a prefix that is not declared is the processor's to refuse";
    EXPECT_EQ(madeIn("<f:b>" + attribute("a", "1<t:text>2</t:text>3") + attribute("b", "1<t:value-of/>") +
                     attribute("c", "<t:choose>1</t:choose>") + "</f:b>"),
              "fo:b@a=123 2:28;");
    EXPECT_EQ(
        madeIn(attribute("a", "&pt;") + attribute("b", "1&px;"), "xmlns:f='http://www.w3.org/1999/XSL/Format'", dtd),
        "fo:@a=1pt 2:23;fo:@b=1? 2:63;");
    EXPECT_EQ(madeIn(attribute("a", std::string(70'000, 'x'))), "") << "longer than any value";
    EXPECT_EQ(madeIn("<f:b><t:attribute name='a' select='1'/>" + attribute("b", "2") + "</f:b>"), "fo:b@b=2 2:62;");
}

TEST(Stylesheet, TellsTheValuesOfBranches) {
    struct Row {
        char const *content, *values;
    };
    for (Row const& row :
         {Row{"<t:text>1</t:text>", "1 2:31;"}, Row{"\n <t:text>1</t:text><!-- -->\n ", "1 3:10;"},
          Row{"<t:text> </t:text>", "  2:41;"}, Row{"<t:text/>", " 2:32;"},
          Row{"<t:text/>1<t:text> </t:text>\n", "1  2:32;"}, Row{"<t:if>1</t:if>", "1 2:29;"},
          Row{"<t:choose>\n<t:when>1</t:when><t:when>\n2</t:when><t:otherwise/></t:choose>\n", "1 3:9;\n2 4:1;"},
          Row{"<t:choose><t:when><t:if><t:text>1</t:text></t:if></t:when><t:otherwise>2</t:otherwise></t:choose>",
              "1 2:55;2 2:94;"},
          Row{"<t:choose><t:when>1<t:value-of/></t:when><t:otherwise>2</t:otherwise></t:choose>", "2 2:77;"},
          Row{"<t:choose><t:when><t:x>1</t:x></t:when><t:x><t:when>2</t:when></t:x></t:choose>", ""},
          Row{"<t:choose><t:when>1</t:when><x/></t:choose>", ""}, Row{"<t:if>1</t:if><t:if>2</t:if>", ""},
          Row{"<t:if>1</t:if>2", ""}, Row{"1 <t:choose><t:when>2</t:when></t:choose>", ""},
          Row{"<t:choose><t:when>1</t:when></t:choose><t:value-of/>", ""}, Row{"<t:value-of/><t:text>1</t:text>", ""},
          Row{"<t:for-each><t:if>1</t:if></t:for-each>", ""}, Row{"<t:if><t:if>1</t:if>2</t:if>", ""}}) {
        std::string values = madeIn(attribute("a", row.content));
        for (std::size_t at = 0; (at = values.find("fo:@a=", at)) != std::string::npos;) values.erase(at, 6);
        EXPECT_EQ(values, row.values) << row.content;
    }
}

} // namespace
} // namespace Command
