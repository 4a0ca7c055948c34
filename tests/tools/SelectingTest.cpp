// Which findings are told: filters, groups, baselines, configurations.

#include "selecting/Baseline.h"
#include "selecting/Configuration.h"
#include "selecting/Filter.h"
#include "selecting/Glob.h"
#include "tools/RunCommand.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Command {
namespace {

using namespace std::string_literals;

std::string const svg = "<svg xmlns='http://www.w3.org/2000/svg'>";

Finding finding(Fault fault, std::string const& element, std::string const& attribute, std::string const& text) {
    Finding made;
    made.fault = fault;
    made.element = element;
    made.attribute = attribute;
    made.text = text;
    return made;
}

TEST(Glob, ComparesPathsPartByPart) {
    struct Row {
        char const *pattern, *path;
        bool matches;
    };
    for (Row const& row :
         {Row{"*.svg", "a.svg", true}, Row{"*.svg", "icons/16/a.svg", true}, Row{"*.svg", "a.svgz", false},
          Row{"icons/*.svg", "icons/a.svg", true}, Row{"icons/*.svg", "icons/16/a.svg", false},
          Row{"icons/**/a.svg", "icons/16/x/a.svg", true}, Row{"icons/**/a.svg", "icons/a.svg", true},
          Row{"**/old/*", "a/old/b/old/c", true}, Row{"**/old/*", "a/old/b/c", false},
          Row{"icons/", "icons/16/a.svg", true}, Row{"icons/", "icons2/a.svg", false}, Row{"icons/**", "icons", false},
          Row{"a?c/x*y*z", "abc/x1y2yz", true}, Row{"a?c/x*y*z", "abc/x1y2", false}, Row{"a/b", "a/b/c", false},
          Row{"a/b/c", "a/b", false}, Row{"../a.svg", "../a.svg", true}})
        EXPECT_EQ(matchesGlob(row.pattern, row.path), row.matches) << row.pattern << " and " << row.path;
}

TEST(Filter, KnowsFindingsByTheirNames) {
    struct Row {
        std::vector<std::string> ignored, only;
        bool passes;
    };
    Finding const seen = finding(Fault::Misread, "svg:path", "d", "M0");
    for (Row const& row :
         {Row{{}, {}, true}, Row{{"misread"}, {}, false}, Row{{"lenient"}, {}, true}, Row{{}, {"misread"}, true},
          Row{{}, {"lenient"}, false}, Row{{}, {"lenient", "attribute:d"}, true},
          Row{{"attribute:d"}, {"misread"}, false}, Row{{"attribute:D"}, {}, true}, Row{{"element:path"}, {}, false},
          Row{{"element:svg:path"}, {}, false}, Row{{"element:svg"}, {}, true}}) {
        Filter filter;
        for (std::string const& name : row.ignored) EXPECT_EQ(filter.ignore(name), std::nullopt) << name;
        for (std::string const& name : row.only) EXPECT_EQ(filter.only(name), std::nullopt) << name;
        EXPECT_EQ(filter.passes(seen), row.passes)
            << testing::PrintToString(row.ignored) << testing::PrintToString(row.only);
    }
    Filter filter;
    for (std::string const name : {"", "Misread", "element:", "d"})
        EXPECT_NE(filter.ignore(name), std::nullopt) << name;
    EXPECT_TRUE(filter.isEmpty());
}

TEST(Baseline, KnowsFindingsAsOftenAsItHasThem) {
    std::string const file = write("base/known.json", "");
    std::string const document = write("base/docs/a.svg", ""), other = scratch + "/base/b.svg";
    std::string const longText(500, 'x');
    Finding const twice = finding(Fault::Misread, "path", "d", "M0"),
                  once = finding(Fault::Misread, "path", "d", longText),
                  element = finding(Fault::UnknownElement, "pth", "", ""),
                  alike = finding(Fault::Misread, "path", "d", longText + "y");
    Baseline recorded(file);
    for (Finding const* const one : {&twice, &twice, &once, &element}) recorded.add(document, *one);
    recorded.add(other, twice);
    recorded.write();
    Baseline known(file);
    ASSERT_EQ(known.read(), std::nullopt);
    EXPECT_TRUE(known.take(document, twice));
    EXPECT_TRUE(known.take(scratch + "/base/./docs/../docs/a.svg", twice));
    EXPECT_FALSE(known.take(document, twice)) << "the third time";
    EXPECT_FALSE(known.take(document, alike));
    EXPECT_TRUE(known.take(document, once));
    EXPECT_FALSE(known.take(scratch + "/base/c.svg", twice));
    EXPECT_EQ(known.gone(), std::vector({"b.svg: d=\"M0\" on path [misread]"s})) << "whose file is not there";
    known.finish(document);
    EXPECT_EQ(known.gone().size(), 2u);
    for (std::string const content :
         {"", "[]", "{\"baseline\":2}", "{\"baseline\":1,\"documents\":{\"a\":[1]}}",
          "{\"baseline\":1,\"documents\":{\"a\":[{\"id\":1}]}}", "{\"baseline\":1", "{\"baseline\":1,\"documents\":[]}",
          "{\"baseline\":1,\"documents\":{\"a\":[{\"id\":\"i\",\"element\":\"e\","
          "\"attribute\":\"a\",\"text\":\"t\",\"count\":-1}]}}"})
        EXPECT_NE(Baseline(write("base/bad.json", content)).read(), std::nullopt) << content;
}

TEST(Baseline, LeavesOnlyWhatIsNew) {
    std::string const document = write("only/a.svg", svg + "<rect width='broad'/><path d='M1 1l.5.5'/></svg>");
    std::string const file = scratch + "/only/known.json";
    EXPECT_EQ(run("check --write-baseline " + file + " " + document).code, 0);
    Result result = run("check --strict --baseline " + file + " " + document);
    EXPECT_EQ(result.output, "");
    EXPECT_NE(result.errors.find("0 errors, 0 warnings, 2 in the baseline\n"), std::string::npos) << result.errors;
    EXPECT_EQ(result.code, 0);
    write("only/a.svg", svg + "\n\n<g/><rect width='broad'/><rect width='wide'/></svg>");
    result = run("check --baseline " + file + " " + document);
    EXPECT_NE(result.output.find("a.svg:3:32: error: width=\"wide\""), std::string::npos) << result.output;
    EXPECT_EQ(result.output.find("broad"), std::string::npos);
    EXPECT_NE(result.errors.find("known.json: 1 entry that no longer occurs"), std::string::npos) << result.errors;
    EXPECT_EQ(result.code, 1);
    std::string const before = contentOf(file);
    result = run("check --write-baseline /nowhere/known.json " + document);
    EXPECT_EQ(result.errors.find("xmlattr: /nowhere/known.json: cannot be written: "), 0u) << result.errors;
    EXPECT_NE(result.errors.find("2 errors, 0 warnings (0 shown)\n"), std::string::npos) << result.errors;
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(run("check --baseline " + document + " " + document).code, 2);
    EXPECT_EQ(contentOf(file), before);
    std::string many = svg;
    for (int i = 0; i < 21; ++i) many += "<rect width='" + std::to_string(i) + " q'/>";
    EXPECT_EQ(run("check -q --write-baseline " + file + " " + write("only/a.svg", many + "</svg>")).code, 0);
    result = run("check --baseline " + file + " " + write("only/a.svg", svg + "</svg>"));
    EXPECT_NE(result.errors.find("known.json: 21 entries that no longer occur; "), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find("\n  and 1 more\n"), std::string::npos) << result.errors;
}

TEST(Groups, PutEqualFindingsTogether) {
    std::string const some = svg + "<rect width='broad'/>\n<g><rect width='broad'/><path d='M1 1l.5.5'/></g></svg>";
    std::string const first = write("group/a.svg", some), second = write("group/b.svg", some);
    Result const result = run("check --group " + first + " " + second);
    EXPECT_EQ(result.output.find(first + ":1:47: error: width=\"broad\" on rect is not legal; "), 0u) << result.output;
    EXPECT_NE(result.output.find("[bad-value] (4 places, also " + first + ":2:10 and " + second + ":1:47)\n"),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.errors.find("\n2 distinct findings; the most frequent 4 times: width=\"broad\""),
              std::string::npos);
    std::string const other = write("group/c.svg", svg + "<rect width='broad' height='broad'/></svg>");
    EXPECT_EQ(std::ranges::count(run("check --group " + other).output, '\n'), 2) << "of two attributes";
    EXPECT_NE(run("check --group --format json " + first).output.find("\"count\":2,\"places\":[{\"file\":\""),
              std::string::npos);
}

TEST(Shown, ListsWhatIsCounted) {
    std::string const document =
        write("shown.svg", "<svg xmlns='http://www.w3.org/2000/svg' xmlns:o='urn:o' o:a='1' fill='inherit' "
                           "href='#a' paint-order='fill'><o:b c='d'/></svg>");
    struct Row {
        char const* words;
        std::vector<std::string> attributes;
    };
    for (Row const& row :
         {Row{"", {}}, Row{"--show passed-over", {"fill"}}, Row{"--show unknown", {"href", "paint-order"}},
          Row{"--show not-covered", {"a", "href", "paint-order", "c"}},
          Row{"--show passed-over,unknown --ignore attribute:fill", {"href", "paint-order"}}}) {
        Result const result = run("check "s + row.words + " " + document);
        std::string expected;
        for (std::string const& attribute : row.attributes) expected += ": note: " + attribute + "=";
        std::string found;
        for (std::size_t at = result.output.find(": note: "); at != result.output.npos;
             at = result.output.find(": note: ", at + 1))
            found += result.output.substr(at, result.output.find('=', at) - at + 1);
        EXPECT_EQ(found, expected) << row.words << "\n" << result.output;
        EXPECT_EQ(result.code, 0) << row.words;
    }
    EXPECT_EQ(run("check --show all " + document).code, 2);
}

TEST(Configuration, IsWrongAtAPlace) {
    struct Row {
        char const *content, *problem;
    };
    for (Row const& row :
         {Row{"\n ignor = 1", ":2:2: no option is called \"ignor\""},
          Row{"ignore = [\"misread\", \"nix\"]", ":1:22: \"nix\" is not bad-value, "},
          Row{"only = 3", ":1:8: expected a text in quotation marks"},
          Row{"jobs = -1", ":1:8: expected a whole number"}, Row{"strict = 1", ":1:10: expected true or false"},
          Row{"color = 'x'", ":1:9: expected \"auto\", \"always\" or \"never\""},
          Row{"paths = 3", ":1:9: paths is a table: [[paths]]"},
          Row{"[[paths]]\nstrict = true", ":1:1: [[paths]] without files"},
          Row{"[[paths]]\nfiles = 'a'\njobs = 1", ":3:1: no option of [[paths]] is called \"jobs\""},
          Row{"strict = true\nstrict = true", ":2:10: "}, Row{"a = [", ":1:6: "}}) {
        std::string const file = write("wrong.toml", row.content);
        std::optional<std::string> const problem = Configuration().read(file);
        ASSERT_TRUE(problem) << row.content;
        EXPECT_EQ(problem->find(file + row.problem), 0u) << *problem;
    }
    EXPECT_EQ(run("check --config " + scratch + "/wrong.toml " XMLATTR_SAMPLES "/letter.fo").code, 2);
}

TEST(Configuration, HoldsForTheDocumentsBelow) {
    std::string const fault = svg + "<rect width='broad'/><path d='M1 1l.5.5'/></svg>";
    write("tree/xmlattr.toml",
          "strict = true\nignore = 'bad-value'\n[[paths]]\nfiles = ['old/', '*.x.svg']\nstrict = false\n");
    write("tree/own/xmlattr.toml", "only = ['attribute:width']\n");
    struct Row {
        char const *document, *options;
        int findings, code;
    };
    for (Row const& row :
         {Row{"tree/a.svg", "", 1, 1}, Row{"tree/old/deep/a.svg", "", 1, 0}, Row{"tree/a.x.svg", "", 1, 0},
          Row{"tree/a.x.svg", "--strict", 1, 1}, Row{"tree/own/deep/a.svg", "", 1, 1},
          Row{"tree/own/a.svg", "--ignore bad-value", 0, 0}, Row{"tree/a.svg", "--config /dev/null", 2, 1}}) {
        Result const result = run("check "s + row.options + " " + write(row.document, fault));
        EXPECT_EQ(std::ranges::count(result.output, '\n'), row.findings) << row.document << " " << row.options;
        EXPECT_EQ(result.code, row.code) << row.document << " " << row.options;
    }
    // Nor do the documents of one run take each other's.
    std::string together, apart;
    for (char const* const document : {"tree/own/deep/a.svg", "tree/a.svg", "tree/old/deep/a.svg", "tree/own/a.svg"}) {
        together += " " + scratch + "/" + document;
        apart += run("check " + scratch + "/" + document).output;
    }
    EXPECT_EQ(run("check" + together).output, apart);
    write("new/xmlattr.toml", "baseline = 'known.json'\n");
    EXPECT_EQ(run("check --write-baseline " + scratch + "/new/known.json " + write("new/a.svg", fault)).code, 0)
        << "it is not there yet";
}

TEST(Configuration, SaysWhatOptionsSayUnlessTheyDo) {
    std::string const document =
        write("keys/a.svg", svg + "<g nope='' fill='inherit' x='1' paint-order='fill'/>"
                                  "<rect width='broad'/><rect width='broad'/><path d='M1 1l.5.5'/></svg>");
    std::string const known = scratch + "/keys/known.json", empty = write("keys/empty.json", "");
    run("check --write-baseline " + empty + " " + write("keys/sound.svg", svg + "</svg>"));
    run("check --only misread --write-baseline " + known + " " + document);
    auto const told = [&](std::string const& options, std::string const& configuration) {
        write("keys/xmlattr.toml", configuration);
        Result const result = run("check " + options + " " + document);
        return result.output + result.errors + std::to_string(result.code);
    };
    struct Row {
        char const* key;
        std::string option, otherOption = "";
    };
    for (Row const& row :
         {Row{"strict = true", "--strict"}, Row{"strict = false", "", "--strict"},
          Row{"ignore = ['misread', 'attribute:width']", "--ignore misread,attribute:width"},
          Row{"only = ['misread', 'element:rect']", "--only misread --only element:rect"},
          Row{"show = 'passed-over'", "--show passed-over"},
          Row{"show = ['not-covered', 'passed-over']", "--show passed-over,not-covered"},
          Row{"show = 'unknown'", "--show unknown"}, Row{"format = 'json'", "--format json", "--format github"},
          Row{"color = 'always'", "--color always", "--color never"},
          Row{"baseline = 'known.json'", "--baseline " + known, "--baseline " + empty}, Row{"group = true", "--group"},
          Row{"quiet = true", "-q"}, Row{"max-findings = 1", "--max-findings 1", "--max-findings 2"}}) {
        EXPECT_EQ(told("", row.key), told(row.option, "")) << row.key;
        if (!row.option.empty()) {
            EXPECT_NE(told("", row.key), told("", "")) << row.key;
        }
        if (!row.otherOption.empty()) {
            EXPECT_EQ(told(row.otherOption, row.key), told(row.otherOption, "")) << row.key;
        }
    }
    EXPECT_EQ(told("--show passed-over", "show = 'unknown'"), told("--show passed-over,unknown", "")) << "both";
}

} // namespace
} // namespace Command
