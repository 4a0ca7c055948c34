#include "checking/References.h"

#include <gtest/gtest.h>

namespace Command {
namespace {

class Follower final : public XmlHandler {
public:
    explicit Follower(References::Limits const& limits) : references(limits) {}

    void startElement(XmlElement const& element, Tag& tag) override {
        references.startElement(element, Xml::Catalogue::vocabularyOf(element.space), tag, report);
    }
    void missingContent() override { references.missingContent(); }

    References references;
    std::string faults; // "duplicate a 1:2;"
    References::Report const report = [this](ReferenceFault const& fault) {
        faults += fault.kind == ReferenceFault::DuplicateId ? "duplicate " : "dangling ";
        faults += fault.element + " " + fault.attribute + " " + fault.text + " ";
        faults += std::to_string(fault.place.line) + ":" + std::to_string(fault.place.column) + ";";
    };
};

std::string faultsOf(std::string_view document, References::Limits const& limits = {}) {
    Follower follower(limits);
    MemorySource source(document);
    if (auto const failure = readXml(source, follower)) return failure->message;
    follower.references.finish(follower.report);
    return follower.faults;
}

std::string svg(std::string const& content, std::string const& before = "") {
    return before + "<svg xmlns='http://www.w3.org/2000/svg' xmlns:l='http://www.w3.org/1999/xlink'>\n" + content +
           "</svg>";
}

std::string fo(std::string const& content) {
    return "<f:b xmlns:f='http://www.w3.org/1999/XSL/Format' xmlns:s='http://www.w3.org/2000/svg'>\n" + content +
           "</f:b>";
}

TEST(References, AreFollowedInADocument) {
    struct Row {
        std::string document;
        char const* faults;
    };
    for (Row const& row :
         {Row{svg("<g id='a'/><g id='a'/>\n<g  id=' a'/>"), "duplicate g id a 2:15;duplicate g id a 3:5;"},
          Row{svg("<g id='a' xml:id='a'/><g xml:id='a'/>"), "duplicate g xml:id a 2:26;"},
          Row{svg("<g id='a'/><g id='A'/><g id=''/><g id=''/>"), ""},
          Row{svg("<use l:href='#a'/><use href='#b'/><g id='b'/>"), "dangling use xlink:href a 2:6;"},
          Row{svg("<use href=' #a%20b '/><use href='#%61'/><g id='a'/>"), "dangling use href a b 2:6;"},
          Row{svg("<use href='a.svg#x'/><a href='#'/><a href='#top'/><a href='#/x'/><a href='#svgView(x)'/>"), ""},
          Row{svg("<a href='#xpointer(id(x))'/><use href='#x&amp;y'/>"), ""},
          Row{svg("<g fill='url(#a)' clip-path='url( \"#b\" )' mask='URL(#c)' marker='url(#d'/>"),
              "dangling g fill a 2:4;dangling g clip-path b 2:19;dangling g mask c 2:43;"},
          Row{svg("<g fill='url(#a) red' stroke='url(#a) none' filter='url(#a) blur(2)'/>"),
              "dangling g filter a 2:45;"},
          Row{svg("<g filter='url(#a) drop-shadow(1) url(#b)'/><g id='a'/>"), "dangling g filter b 2:4;"},
          Row{svg("<g style='/* url(#x) */ Fill: url(#a); mask:url(\"#b;c\"); -x: url(#z)'/>"),
              "dangling g fill a 2:4;dangling g mask b;c 2:4;"},
          Row{svg("<g fill='#aabbcc' cursor='url(#a), auto'/>"), ""},
          Row{fo("<f:b ref-id='a' internal-destination='b'/><f:b id='b'/><f:b internal-destination=''/>"),
              "dangling f:b ref-id a 2:6;"},
          // Drawings have ids of their own, but whatever refers to one finds it.
          Row{fo("<s:svg><s:g id='a'/></s:svg><s:svg><s:g id='a'/><s:g id='a'/></s:svg><f:b id='a'/>"),
              "duplicate s:g id a 2:54;"},
          Row{fo("<s:svg><s:g fill='url(#b)'/></s:svg><f:b id='b' ref-id='c'/><s:svg id='c'/>"), ""},
          Row{fo("<x id='a'/><x id='a'/><f:b id='a' ref-id='a'/>"), "duplicate f:b id a 2:28;"},
          Row{"<x fill='url(#a)' href='#b' id='c'><y id='c'/></x>", ""}})
        EXPECT_EQ(faultsOf(row.document), row.faults) << row.document;
}

TEST(References, AreNotJudgedWhereTheDocumentIsNotAllThatThereIs) {
    std::string const dtd = "<!DOCTYPE svg SYSTEM 'x.dtd' [<!ENTITY x SYSTEM 'x.svg'>]>";
    std::string const dangling = "<use href='#a'/>", twice = "<g id='b'/><g id='b'/>";
    std::string const duplicate = "duplicate g id b 2:";
    for (std::string const& content :
         {dangling + "<i:include xmlns:i='http://www.w3.org/2001/XInclude'/>", "<g xml:base='a/'>" + dangling + "</g>",
          "<script/>" + dangling, dangling + "&x;", dangling + "&y;", dangling + "<g id='&y;'/>",
          std::string("<use href='#a&y;'/>")}) {
        EXPECT_EQ(faultsOf(svg(content, dtd)), "") << content;
        EXPECT_TRUE(faultsOf(svg(content + twice, dtd)).starts_with(duplicate)) << content;
    }
    EXPECT_EQ(faultsOf(svg("<x:y xmlns:x='http://www.w3.org/1999/XSL/Transform'/>" + twice + dangling)), "");
    EXPECT_EQ(faultsOf(svg("<g x:use='' xmlns:x='http://www.w3.org/1999/XSL/Transform'/>" + twice + dangling)), "");
}

TEST(References, KeepABoundedMemory) {
    std::string many, forward;
    for (int i = 0; i < 100; ++i) {
        std::string const id = std::to_string(i);
        many += "<g id='i" + id + "'/>";
        forward += "<use href='#i" + id + "'/>";
    }
    std::string const twice = "<g id='i0'/>", dangling = "<use href='#no'/>";
    // What has been found since makes room; what has not ends the search.
    EXPECT_EQ(faultsOf(svg(forward + many + forward + dangling), {1000, 100}), "dangling use href no 2:4876;");
    EXPECT_EQ(faultsOf(svg(dangling + forward + many), {1000, 100}), "");
    EXPECT_EQ(faultsOf(svg(forward + many + forward + dangling), {1000, 200, 1000}), "dangling use href no 2:4876;");
    EXPECT_EQ(faultsOf(svg(dangling + forward + many), {1000, 200, 800}), "");
    EXPECT_NE(faultsOf(svg(many + dangling + twice), {200, 100}), "");
    EXPECT_EQ(faultsOf(svg(many + dangling + twice), {50, 100}), "");
}

TEST(NumberSet, HoldsEachNumberOnce) {
    NumberSet set;
    EXPECT_FALSE(set.contains(1));
    for (std::uint64_t round = 0; round < 2; ++round)
        for (std::uint64_t i = 1; i < 10'000; ++i) EXPECT_EQ(set.add(i << 40 | 1), round == 0) << i;
    EXPECT_EQ(set.size(), 9'999u);
    EXPECT_TRUE(set.contains(std::uint64_t{9'999} << 40 | 1));
    EXPECT_FALSE(set.contains(std::uint64_t{10'000} << 40 | 1));
}

} // namespace
} // namespace Command
