// Runs the command as its users do.

#include "output/Json.h"
#include "tools/RunCommand.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <pty.h>
#include <string>

namespace Command {
namespace {

using namespace std::string_literals;

// The places of the findings, "line:column" each.
std::string placesIn(std::string const& output, std::string const& file) {
    std::string places;
    for (std::size_t at = output.find(file); at != output.npos; at = output.find(file, at + 1)) {
        std::size_t const first = at + file.size() + 1;
        places += output.substr(first, output.find(": ", first) - first) + " ";
    }
    return places;
}

// A drawing with one value to fix and, on demand, one to leave.
std::string drawing(std::string const& width, std::string const& end = "/>\n") {
    return "<svg xmlns='http://www.w3.org/2000/svg'\n  width='" + width + "'" + end;
}

TEST(Command, RefusesNothingInSoundDocuments) {
    for (std::string const& name : {"letter.fo"s, "invoice.fo"s, "report.fo"s, "drawing.svg"s, "scene.svg"s}) {
        Result const result = run("check --strict " XMLATTR_SAMPLES "/" + name);
        EXPECT_EQ(result.output, "") << name;
        EXPECT_EQ(result.code, 0) << name;
    }
}

TEST(Command, FindsEachPlantedFault) {
    Result const result = run("check " XMLATTR_SAMPLES "/faults.fo");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(placesIn(result.output, "faults.fo"),
              "9:17 10:17 11:17 13:17 14:17 15:17 16:40 19:11 20:17 21:17 22:17 23:17 24:17 26:27 "
              "27:17 28:17 29:17 30:17 31:27 32:17 33:7 34:17 37:15 38:36 35:42 ");
    for (
        std::string const& message :
        {"space-before=\"12 q\" on fo:block is not legal; expected a number with a unit (px, pt, pc, cm, mm, in, em, ex) ["s,
         "error: rule-thickness=\"1PT\" on fo:block is not legal; write \"1pt\" [bad-value]"s,
         "font-weight=\"bald\" on fo:block is not legal; write \"bold\" [bad-value]"s,
         "warning: border=\"1q solid red\" on fo:block: \"1q\" is CSS 3, which the formatter does not read ["s,
         "padding=\"1pt 2pt 3pt 4pt 5pt\" on fo:block has more than 4 parts [bad-value]"s,
         "warning: hyphenate=\"treu\" on fo:block is not legal, but the formatter takes it; write \"true\" [lenient]"s,
         "warning: margin-left=\"10\" on fo:block is read as 1000%; write \"10pt\" [lenient]"s,
         "warning: fo:blok is not an element of XSL-FO 1.1; did you mean \"fo:block\"? [unknown-element]"s,
         "warning: widht on fo:block is no known attribute; did you mean \"width\"? [unknown-attribute]"s,
         "warning: writing-mode=\"lr_tb\" on fo:block-container is not legal; expected lr-tb, "s,
         "warning: font-size=\"-3pt\" on fo:block is negative, but the formatter takes it"s,
         "d=\"M1 1l.5.5\" on path: \".5\" is read as 0; write \"M1 1l.5 .5\" [misread]"s,
         "ref-id on fo:page-number-citation refers to \"nowhere\", which no element has as its id ["s,
         "stroke-width=\"broad\" on svg is not legal; expected "s})
        EXPECT_NE(result.output.find(message), std::string::npos) << message;
    EXPECT_NE(result.errors.find(" refused, "), std::string::npos) << result.errors;
    EXPECT_EQ(run("check -q --max-findings 2 " XMLATTR_SAMPLES "/faults.fo | wc -l").output, "2\n");
    std::string const both = scratch + "/both";
    std::string const told = run("check " XMLATTR_SAMPLES "/faults.fo >" + both + " 2>&1; cat " + both).output;
    EXPECT_EQ(told, result.output + result.errors) << "in this order";
}

TEST(Command, SpeaksJson) {
    std::string const file = write("one.fo", "<block xmlns='http://www.w3.org/1999/XSL/Format' break-before='pages'/>");
    Result const result = run("check --format json " + file);
    EXPECT_EQ(
        result.output,
        "{\"file\":\"" + file +
            "\",\"line\":1,\"column\":50,\"severity\":\"error\",\"id\":\"bad-value\",\"element\":\"block\","
            "\"attribute\":\"break-before\",\"text\":\"pages\",\"message\":"
            "\"break-before=\\\"pages\\\" on block is not legal; write \\\"page\\\"\","
            "\"expected\":\"auto, column, page, even-page or odd-page\",\"replacement\":\"page\",\"exact\":false}\n");
    EXPECT_NE(result.errors.find("\"refused\":1"), std::string::npos);
}

TEST(Command, ReportsWhatItCannotReadAndGoesOn) {
    std::string bomb = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
    for (int i = 1; i < 12; ++i) {
        std::string const before = "&e" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY e" + std::to_string(i) + " '";
        for (int n = 0; n < 10; ++n) bomb += before;
        bomb += "'>";
    }
    std::string deep;
    for (int i = 0; i < 10'001; ++i) deep += "<a>";
    struct Row {
        char const* name;
        std::string content;
        char const* message;
    };
    std::string const sound = write("sound.fo", "<block xmlns='http://www.w3.org/1999/XSL/Format' span='al'/>");
    std::string const endings[] = {"; mend it there, nothing after it was checked [malformed]\n",
                                   "; nothing after it was checked [limit]\n",
                                   "; convert the file to UTF-8 [encoding]\n"};
    for (Row const& row :
         {Row{"empty", "", ":1:1: error: no element in the file"},
          Row{"cut", "<a>\n<b", ":2:1: error: the file ends too early: unclosed token"},
          Row{"open", "<a>\n", ":2:1: error: the file ends inside of an element"},
          Row{"text", "plain", ":1:1: error: no well-formed XML: syntax error"},
          Row{"marked", "\xEF\xBB\xBF<a b='' b=''/>", ":1:9: error: no well-formed XML: duplicate attribute"},
          Row{"mark", "\xEF\xBB\xBF", ":1:1: error: no element in the file"},
          Row{"twice", "<a b='' b=''/>", ":1:9: error: no well-formed XML: duplicate attribute"},
          Row{"utf8", "<a b='\xC3('/>", ":1:7: error: no well-formed XML: not well-formed (invalid token)"},
          Row{"nul", "<a b='"s + '\0' + "'/>", ":1:7: error: no well-formed XML: not well-formed (invalid token)"},
          Row{"volapuk", "<?xml version='1.0' encoding='Volapuk-8'?><a/>",
              ":1:31: error: encoding Volapuk-8 is not read; UTF-8, "},
          Row{"unbound", "<a xmlns:b='urn:b'>\n<b:c d='' b:e='' f:g=''/></a>",
              ":2:1: error: the prefix f is not declared"},
          Row{"bomb", bomb + "]><a>&e11;</a>",
              ":1:653: error: entities expand to more than 100 times the size of the file"},
          Row{"deep", deep, ":1:30001: error: elements nest more than 10000 deep"}}) {
        Result const result = run("check " + write(row.name, row.content) + " " + sound);
        EXPECT_NE(result.errors.find("/"s + row.name + row.message), std::string::npos)
            << row.name << ": " << result.errors;
        EXPECT_TRUE(std::ranges::any_of(endings, [&](std::string const& ending) {
            return result.errors.find(ending) != std::string::npos;
        })) << result.errors;
        EXPECT_NE(result.output.find("sound.fo:1:50: "), std::string::npos) << "the files after it are still read";
        EXPECT_EQ(result.code, 2) << row.name;
    }
    std::filesystem::create_directory(scratch + "/bare");
    std::filesystem::permissions(write("locked.fo", geteuid() == 0 ? "root reads all" : "<a/>"),
                                 std::filesystem::perms::none);
    for (std::string const& path : {"/nowhere.fo"s, "/bare"s, "/locked.fo"s})
        EXPECT_EQ(run("check " + scratch + path).code, 2) << path;
}

TEST(Command, LoadsNoExternalEntity) {
    std::string const secret = write("secret.txt", "1pt");
    std::string const file =
        write("external.svg", "<!DOCTYPE svg SYSTEM '" + secret + "' [<!ENTITY e SYSTEM '" + secret +
                                  "'>]><svg xmlns='http://www.w3.org/2000/svg'>&e;</svg>");
    EXPECT_EQ(run("check " + file).code, 0);
}

TEST(Command, GathersFiles) {
    std::filesystem::remove_all(scratch);
    std::filesystem::create_directories(scratch + "/tree/below");
    std::string const fault = "<block xmlns='http://www.w3.org/1999/XSL/Format' span='al'/>";
    for (char const* const name : {"a.SVG", "b.fo", "below/c.xml", "d.txt", "d.\xFF", "e.xsl", "f.Xslt", "g.svgz"})
        write("tree/"s + name, fault);
    Result const result = run("check -q " + scratch + "/tree");
    std::string const name = scratch + "/tree/", place = ":1:50: ";
    std::string rest = result.output;
    for (char const* const file : {"a.SVG", "b.fo", "below/c.xml", "e.xsl", "f.Xslt", "g.svgz"}) {
        EXPECT_EQ(rest.find(name + file + place), 0u) << file << " before " << rest;
        rest.erase(0, rest.find('\n') + 1);
    }
    EXPECT_EQ(rest, "");
    EXPECT_EQ(run("check -q " + scratch + "/tree/b.fo " XMLATTR_SAMPLES "/letter.fo").code, 1) << "of a file before";
    std::string const spellings = " " + scratch + "/tree/./b.fo " + scratch + "/tree/below/../b.fo";
    EXPECT_NE(run("check " + scratch + "/tree/b.fo" + spellings).errors.find("1 file: "), std::string::npos);
    EXPECT_EQ(run("check - --stdin-name in.fo <" + scratch + "/tree/b.fo").output.find("in.fo:1:50: "), 0u);
    std::string const list = write("list", scratch + "/tree/b.fo\r\n\n");
    EXPECT_NE(run("check --files-from " + list).errors.find("1 file: 1 attribute;"), std::string::npos);
    Result const none = run("check --files-from " + write("list", "\n\r\n"));
    EXPECT_NE(none.errors.find("list: no path in this file"), std::string::npos) << none.errors;
    EXPECT_EQ(none.code, 2);
    EXPECT_NE(run("check - - <" + scratch + "/tree/b.fo").errors.find("1 file: "), std::string::npos) << "read once";
}

TEST(Command, ShowsListsAndExplains) {
    struct Row {
        char const *arguments, *output;
        int code;
    };
    for (Row const& row :
         {Row{"show Length 12pc --equal 12pc", "equal       \"12pc\": yes\n", 0},
          Row{"show length -5pt", "prints      \"-5pt\"\n", 0},
          Row{"show Length -.5pt --equal -.5pt", "equal       \"-.5pt\": yes\n", 0},
          Row{"show -- Length -.5pt", "text        \"-.5pt\"\n", 0},
          Row{"show Core::String -- --equal", "text        \"--equal\"\n", 0},
          Row{"show String --equal=-h -- -h", "equal       \"-h\": yes\n", 0},
          Row{"show String -- --", "prints      \"--\"\n", 0},
          Row{"show String ''", "prints      \"\"\n", 0},
          Row{"show rectf 'rect(0,0,0,0)'", "type        Drawing::RectF\n", 0},
          Row{"show Length 12", "near        \"12pt\" is accepted\n", 1},
          Row{"show Lenght 1pt", "", 2},
          Row{"show Length", "", 2},
          Row{"show --format json Break page --equal page",
              "\"held\":\"page\",\"parts\":[{\"name\":\"number\",\"value\":\"3\"}],\"equal\":true}", 0},
          Row{"show --format json Brake page", "{\"severity\":\"fatal\",\"id\":\"unknown-type\",\"message\":\"no value",
              2},
          Row{"types --format json nonsense", "{\"severity\":\"fatal\",\"id\":\"no-match\",", 2},
          Row{"types --format json Break", "\"keywords\":[\"auto\",\"column\",\"page\",", 0},
          Row{"properties --format json clear --vocabulary fo", "\"type\":\"Clear\",\"defaultConstant\":", 0},
          Row{"properties --format json clear --vocabulary fo",
              "\"alsoLegal\":[\"start\",\"end\",\"inside\",\"outside\"]", 0},
          Row{"types Break", "Break                           auto, column, page, even-page or odd-page\n", 0},
          Row{"types --format json", "{\"type\":\"int\",\"public\":false,", 0},
          Row{"types nonsense", "", 2},
          Row{"types --format json nonsense", "\"id\":\"no-match\"", 2},
          Row{"show --format json Brake page", "\"id\":\"unknown-type\"", 2},
          Row{"types BREAK", "Break       ", 0},
          Row{"properties --type BREAK CLEAR", "", 2},
          Row{"properties --type color COLOR", "fo   *       background-color ", 0},
          Row{"properties --vocabulary svg --type Core::String", "svg  *       font-family ", 0},
          Row{"properties margin-top --format json", "\"alsoLegal\":[\"auto\"],\"initial\":\"0pt\"", 0},
          Row{"properties --format json border-top --vocabulary fo",
              "\"longhands\":[\"border-top-width\",\"border-top-style\",\"border-top-color\"]}\n", 0},
          Row{"properties --format json column-width", " a percentage or proportional-column-width(...)\",", 0},
          Row{"properties --format json flood-color --vocabulary svg", "\"presentation\":true,\"grammar\":\"", 0},
          Row{"properties nonsense", "", 2},
          Row{"--explain bad-value", "bad-value\n\n", 0},
          Row{"--explain dangling-reference", "dangling-reference\n\n", 0},
          Row{"--explain no-match", "no-match\n\n", 0},
          Row{"--explain unknown-type", "unknown-type\n\n", 0},
          Row{"--explain x", "", 2},
          Row{"check", "", 2},
          Row{"frobnicate", "", 2},
          Row{"--version", "xmlattr ", 0}}) {
        Result const result = run(row.arguments);
        EXPECT_NE(result.output.find(row.output), std::string::npos) << row.arguments << ": " << result.output;
        EXPECT_EQ(result.code, row.code) << row.arguments;
    }
}

TEST(Check, WritesOverNoDocument) {
    std::string const file = write("kept.svg", drawing("1px")), named = write("kept", drawing("1px"));
    for (std::string const& arguments :
         {"--output " + file, "--output " + file + " " + named, "--output " + named + " " + named,
          "--write-baseline " + named + " " + named}) {
        Result const result = run("check - " + arguments + " </dev/null");
        EXPECT_NE(result.errors.find(": this document would be lost"), std::string::npos) << result.errors;
        EXPECT_EQ(result.code, 2);
    }
    EXPECT_EQ(contentOf(file) + contentOf(named), drawing("1px") + drawing("1px"));
    EXPECT_EQ(run("check - --output both --write-baseline both </dev/null").code, 2);
}

TEST(Command, SaysWhatIsWrongWithACall) {
    struct Row {
        char const *arguments, *message;
    };
    for (Row const& row :
         {Row{"check a --max-findings -1", "--max-findings: \"-1\" is no whole number\n"},
          Row{"check a --max-findings ''", "--max-findings: \"\" is no whole number\n"},
          Row{"check a --format xml", "--format: \"xml\" is not text, json, sarif, github or html\n"},
          Row{"check a --color sometimes", "--color: \"sometimes\" is not auto, always or never\n"},
          Row{"properties --vocabulary html", "--vocabulary: \"html\" is not fo or svg\n"},
          Row{"properties --type Brake", "no value type is called \"Brake\"; did you mean \"Break\"?\n"},
          Row{"show Brake page", "no value type is called \"Brake\"; did you mean \"Break\"?\n"},
          Row{"show Length 1pt 2pt", "show takes a value type and a text\n"},
          Row{"show Length", "show takes a value type and a text\n"}, Row{"show", "TYPE is required\n"},
          Row{"check",
              "no file to check\nReport each attribute that is not read as it is written\nUsage: xmlattr check "},
          Row{"", "no command given\n"}, Row{"--help >/dev/full", "xmlattr: standard output: "},
          Row{"--version >/dev/full", "xmlattr: standard output: "},
          Row{"show -h >/dev/full", "xmlattr: standard output: "},
          Row{"types >/dev/full", "xmlattr: standard output: "}}) {
        Result const result = run(row.arguments);
        EXPECT_NE(result.errors.find(row.message), std::string::npos) << row.arguments << ": " << result.errors;
        EXPECT_EQ(result.code, 2) << row.arguments;
    }
}

TEST(Check, TellsInReportsForProgramsWhatItCouldNotDo) {
    std::string const sound = write("told/sound.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>");
    std::filesystem::create_directories(scratch + "/told/empty");
    write("told/wrong.toml", "zork = 1");
    struct Row {
        std::string arguments, id, message;
        int notifications = 1;
    };
    for (Row const& row :
         {Row{sound + " " + scratch + "/told/empty", "no-document", "no .fo, .svg, .svgz, .xml, .xsl or .xslt file"},
          Row{sound + " " + scratch + "/told/none.svg", "unreadable", "cannot be read: "},
          Row{sound + " --ignore zork", "usage", "--ignore: "},
          Row{sound + " --files-from " + scratch + "/told/none", "usage", "/none: "},
          Row{sound + " --config " + scratch + "/told/wrong.toml", "usage", "no option is called"},
          Row{sound + " --baseline " + scratch + "/told/none", "usage", "the baseline cannot be read"},
          Row{sound, "", "", 0}}) {
        Result const lines = run("check -q --format json " + row.arguments);
        Result const report = run("check -q --format sarif " + row.arguments);
        EXPECT_EQ(lines.errors + report.errors, "") << row.arguments;
        EXPECT_EQ(lines.code, row.notifications > 0 ? 2 : 0) << row.arguments;
        EXPECT_EQ(report.code, lines.code) << row.arguments;
        EXPECT_EQ(std::ranges::count(lines.output, '\n'), row.notifications) << lines.output;
        EXPECT_NE(lines.output.find(row.message), std::string::npos) << lines.output;
        Json const invocation = Json::parse(report.output)["runs"][0]["invocations"][0];
        Json const& notifications = invocation["toolExecutionNotifications"];
        EXPECT_EQ(invocation["executionSuccessful"], row.notifications == 0) << row.arguments;
        ASSERT_EQ(std::ssize(notifications), row.notifications) << row.arguments;
        for (Json const& notification : notifications) {
            EXPECT_EQ(notification["descriptor"]["id"], row.id);
            EXPECT_EQ(run("--explain " + row.id).code, 0) << row.id;
        }
    }
}

TEST(Check, DrawsThePartOfAListThatIsReadOtherwise) {
    std::string const file = write("drawn.fo", "<block xmlns='http://www.w3.org/1999/XSL/Format' id='a' margin='10' "
                                               "border-color='rgb(300,0,0) red'/>");
    std::string const page = run("check -q --format html --ignore lenient " + file).output;
    std::size_t const meant = page.find("<rect fill='#ff0000'/>"), held = page.find("<rect fill='#2c0000'/>");
    EXPECT_LT(meant, held);
    EXPECT_NE(held, page.npos);
    EXPECT_NE(page.find("<p>Left out: 1 finding.</p>"), page.npos);
}

TEST(Command, FixesFilesInPlace) {
    namespace fs = std::filesystem;
    std::filesystem::remove_all(scratch);
    std::string const mixed = drawing("1PX", " height='q'/>\n");
    struct Row {
        std::string options, content, fixed, summary;
        int code;
    };
    for (Row const& row :
         {Row{"", drawing("1PX"), drawing("1px"), "1 file, rewritten 1; values fixed 1 (1 lenient), findings left 0\n",
              0},
          Row{"", mixed, drawing("1px", " height='q'/>\n"),
              "1 file, rewritten 1; values fixed 1 (1 lenient), findings left 1 (1 bad-value)\n", 1},
          Row{"", drawing("1px"), drawing("1px"), "1 file, rewritten 0; values fixed 0, findings left 0\n", 0},
          Row{"", drawing("1 inch"), drawing("1 inch"),
              "1 file, rewritten 0; values fixed 0, findings left 1 (1 bad-value); --suggestions would fix 1\n", 1},
          Row{"--suggestions ", drawing("1 inch"), drawing("1in"),
              "1 file, rewritten 1; values fixed 1 (1 bad-value), findings left 0\n", 0},
          Row{"-n ", drawing("1PX"), drawing("1PX"),
              "1 file, to be rewritten 1; values fixed 1 (1 lenient), findings left 0\n", 0},
          Row{"-q ", drawing("1PX"), drawing("1px"), "", 0},
          Row{"-q ", drawing("1PX", ">"), drawing("1PX", ">"),
              "drawing.svg:2:15: error: the file ends inside of an element [malformed]\n", 2}}) {
        std::string const file = write("drawing.svg", row.content);
        fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
        Result const result = run("fix " + row.options + file);
        EXPECT_EQ(contentOf(file), row.fixed) << row.content;
        EXPECT_TRUE(result.errors.ends_with(row.summary)) << result.errors;
        EXPECT_EQ(result.code, row.code) << row.content;
        EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    }
    std::string const left = run("fix -q " + write("drawing.svg", mixed)).output;
    EXPECT_NE(left.find("drawing.svg:2:15: error: height=\"q\" on svg is not legal; "), std::string::npos) << left;
    EXPECT_EQ(run("fix").code, 2);
    EXPECT_EQ(run("fix " + scratch + "/nowhere.svg").code, 2);
    EXPECT_EQ(run("fix /dev/null").code, 2);
}

TEST(Command, FixesWhatTheConfigurationOfADocumentHas) {
    std::filesystem::remove_all(scratch);
    std::filesystem::create_directories(scratch + "/tree");
    std::string const file = write("tree/a.svg", drawing("1PX", " height='2PX' x='q'/>\n"));
    write("tree/xmlattr.toml", "ignore = ['attribute:width', 'attribute:x']\n");
    std::filesystem::path const before = std::filesystem::current_path();
    std::filesystem::current_path(scratch);
    std::string const diff = run("fix -n " + scratch + "/tree/../tree/a.svg").output;
    std::filesystem::current_path(before);
    EXPECT_TRUE(diff.starts_with("--- tree/a.svg\n+++ tree/a.svg\n")) << diff;
    Result const result = run("fix " + file);
    EXPECT_EQ(contentOf(file), drawing("1PX", " height='2px' x='q'/>\n"));
    EXPECT_TRUE(result.errors.ends_with("values fixed 1 (1 lenient), findings left 0\n")) << result.errors;
    write("tree/xmlattr.toml", "ignore = 'no-such-id'\n");
    EXPECT_EQ(run("fix " + file).code, 2);
}

TEST(Command, FixesWhatLinksLeadToAndWritesElsewhere) {
    namespace fs = std::filesystem;
    fs::remove_all(scratch);
    fs::create_directories(scratch + "/tree/below");
    write("tree/below/a.svg", drawing("1PX"));
    write("tree/b.svg", drawing("2px"));
    fs::create_symlink("tree/below/a.svg", scratch + "/link.svg");
    fs::create_symlink("/dev/full", scratch + "/tree/full");
    fs::create_directories(scratch + "/out");
    fs::create_symlink("elsewhere.svg", scratch + "/out/b.svg");

    EXPECT_EQ(run("fix -o " + scratch + "/out " + scratch + "/tree").code, 0);
    EXPECT_EQ(contentOf(scratch + "/out/below/a.svg"), drawing("1px"));
    EXPECT_EQ(contentOf(scratch + "/out/elsewhere.svg"), drawing("2px")) << "what has nothing to fix is written too";
    EXPECT_EQ(contentOf(scratch + "/tree/below/a.svg"), drawing("1PX"));
    Result const twice = run("fix -o " + scratch + "/out " + scratch + "/tree/b.svg " + scratch + "/out/b.svg");
    EXPECT_NE(twice.errors.find("another file has the name "), std::string::npos) << twice.errors;
    EXPECT_EQ(twice.code, 2);
    Result const under = run("fix -o " + scratch + "/tree/b.svg " + scratch + "/link.svg");
    EXPECT_NE(under.errors.find("link.svg: error: cannot be written: "), std::string::npos) << under.errors;
    EXPECT_EQ(under.code, 2);

    std::string const both = scratch + "/link.svg " + scratch + "/tree/below/a.svg";
    EXPECT_EQ(run("fix --dry-run " + both).output, run("fix --dry-run " + scratch + "/link.svg").output);
    EXPECT_EQ(run("fix " + scratch + "/link.svg").code, 0);
    EXPECT_TRUE(fs::is_symlink(scratch + "/link.svg"));
    EXPECT_EQ(contentOf(scratch + "/tree/below/a.svg"), drawing("1px"));
}

TEST(Command, FixesStandardInput) {
    std::string const file = write("in.svg", drawing("1PX", " height='q'/>"));
    for (std::string const& input : {"<" + file, "<" + file + " -q"}) {
        Result const result = run("fix - " + input);
        EXPECT_EQ(result.output, drawing("1px", " height='q'/>"));
        EXPECT_EQ(result.errors.find("<stdin>:2:15: error: height="), 0u) << result.errors;
        EXPECT_EQ(result.code, 1);
    }
    EXPECT_EQ(run("--version >/dev/null; cat " + file + " | " XMLATTR_COMMAND " fix -q - 2>/dev/null").output,
              drawing("1px", " height='q'/>"))
        << "a pipe is read twice";
    Result const broken = run("fix -q - <" + write("in.svg", drawing("1PX", ">")));
    EXPECT_EQ(broken.output, drawing("1px", ">")) << "nothing of it is lost";
    EXPECT_EQ(broken.code, 2);
}

TEST(Command, ShowsWhatItWouldFixAsPatchTakesIt) {
    if (std::system("patch --version >/dev/null 2>&1") != 0) GTEST_SKIP() << "there is no patch";
    std::string const start = "<svg xmlns='http://www.w3.org/2000/svg'>\n";
    std::string const plain = "<g/>\n", faulty = "<path d='M0 0l.5.5\n.5.5'/>\n<g/>\n";
    auto const times = [](int count, std::string const& text) {
        std::string all;
        while (count-- > 0) all += text;
        return all;
    };
    auto const inUtf16 = [](std::string const& text) {
        std::string bytes = "\xFF\xFE";
        for (char const c : text) bytes += {c, '\0'};
        return bytes;
    };
    auto const inCrLf = [](std::string text) {
        for (std::size_t at = 0; (at = text.find('\n', at)) != text.npos; at += 2) text.insert(at, 1, '\r');
        return text;
    };
    std::string const some = start + times(2, faulty) + times(3, plain) + faulty + times(6, plain) + faulty +
                             times(7, plain) + faulty + times(4, plain) + "</svg>";
    std::size_t number = 0;
    for (std::string const& content :
         {some, some + "\n", start + faulty + "</svg>\n", start + times(9, plain) + faulty + "</svg>", inCrLf(some),
          inUtf16(some), inUtf16(inCrLf(some)), "<svg xmlns='http://www.w3.org/2000/svg' width='1PX'/>"s,
          start + "<text x='1PX'/></svg>\n"}) {
        std::filesystem::remove_all(scratch);
        std::string const name =
            std::array{"plain.svg", "with blank.svg", "\"odd\\\tone\".svg", " blank aside.svg"}[number++ % 4];
        write(name, content);
        std::string const folder = "cd " + scratch + " && ";
        std::string const quoted = "'" + name + "'";
        auto const inFolder = [&](std::string const& command) { return std::system((folder + command).c_str()); };
        inFolder(XMLATTR_COMMAND " fix -q -o out "s + quoted);
        EXPECT_EQ(contentOf(scratch + "/" + name), content);
        EXPECT_EQ(inFolder(XMLATTR_COMMAND " fix -q -n "s + quoted + " >diff"), 0);
        EXPECT_EQ(inFolder("diff -a -U3 " + quoted + " out/" + quoted +
                           " | grep -a '^@@' >hunks; "
                           "grep -a '^@@' diff | cmp -s - hunks"),
                  0)
            << contentOf(scratch + "/diff");
        EXPECT_EQ(inFolder("patch -s -p0 <diff"), 0) << contentOf(scratch + "/diff");
        EXPECT_EQ(contentOf(scratch + "/" + name), contentOf(scratch + "/out/" + name)) << contentOf(scratch + "/diff");
        EXPECT_NE(contentOf(scratch + "/" + name), content);
    }
    std::string const file = write("one.svg", drawing("1PX"));
    EXPECT_EQ(run("fix -q -n --color always " + file).output,
              "--- " + file + "\n+++ " + file +
                  "\n\x1b[36m@@ -1,2 +1,2 @@\x1b[0m\n <svg xmlns='http://www.w3.org/2000/svg'\n"
                  "\x1b[31m-  width='1PX'/>\x1b[0m\n\x1b[32m+  width='1px'/>\x1b[0m\n");
}

TEST(Command, HelpsInWordsOfItsUsers) {
    struct Row {
        char const *command, *usage;
    };
    for (Row const& row :
         {Row{"", "[OPTIONS] [SUBCOMMAND]\n"}, Row{"check ", "check [OPTIONS] [FILE...]\n"},
          Row{"fix ", "fix [OPTIONS] [FILE...]\n"}, Row{"show ", "show [OPTIONS] TYPE [TEXT]\n"},
          Row{"types ", "types [OPTIONS] [NAME]\n"}, Row{"properties ", "properties [OPTIONS] [NAME]\n"}}) {
        Result const result = run(row.command + "--help"s);
        EXPECT_NE(result.output.find("Usage: xmlattr "s + row.usage), std::string::npos) << result.output;
        for (char const* const internal : {"->", ":{", " :", "REQUIRED", "FILE TEXT"})
            EXPECT_EQ(result.output.find(internal), std::string::npos) << internal << " in " << result.output;
        EXPECT_EQ(result.code, 0) << row.command;
    }
}

// What the command prints to a terminal.
std::string printedToTerminal(std::string const& environment, std::string const& arguments) {
    int terminal = 0;
    pid_t const child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        execlp("env", "env", "-S", (environment + " " XMLATTR_COMMAND " " + arguments).c_str(), nullptr);
        _exit(127);
    }
    std::string all, block(4096, '\0');
    for (ssize_t count = 0; (count = read(terminal, block.data(), block.size())) > 0;)
        all.append(block, 0, static_cast<std::size_t>(count));
    close(terminal);
    waitpid(child, nullptr, 0);
    return all;
}

TEST(Command, ColorsWhatATerminalShows) {
    struct Row {
        char const *environment, *options;
        bool isColored;
    };
    std::string const file = write("colored.svg", drawing("1PX"));
    for (Row const& row : {Row{"-u NO_COLOR TERM=xterm", "", true}, Row{"NO_COLOR= TERM=xterm", "", true},
                           Row{"NO_COLOR=1 TERM=xterm", "", false}, Row{"-u NO_COLOR TERM=dumb", "", false},
                           Row{"-u NO_COLOR -u TERM", "", false}, Row{"NO_COLOR=1 TERM=xterm", "--color always", true},
                           Row{"-u NO_COLOR TERM=xterm", "--color never", false}}) {
        std::string const printed = printedToTerminal(row.environment, "check -q "s + row.options + " " + file);
        EXPECT_EQ(printed.find("\x1b[") != printed.npos, row.isColored) << row.environment << ' ' << row.options;
    }
}

TEST(Command, EndsCleanlyWhenNobodyReads) {
    Result const closed = run("properties >&-");
    EXPECT_EQ(closed.code, 2);
    EXPECT_NE(closed.errors.find("standard output"), std::string::npos);
    EXPECT_EQ(run("properties | head -n 1 >/dev/null").errors, "");
}

} // namespace
} // namespace Command
