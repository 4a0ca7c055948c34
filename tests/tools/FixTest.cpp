#include "Versions.h"
#include "fixing/Changes.h"
#include "fixing/Fixer.h"
#include "fixing/ReplacedFile.h"
#include "xml/Encoding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <set>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace Command {
namespace {

using namespace std::string_literals;

struct Outcome {
    std::string document, reasons, failure;
    FixCounts counts;
};

Outcome fixDocument(std::string_view document, Fixer::Options const& options = {}) {
    MemorySource checked(document), copied(document);
    Versions versions;
    Rewriter rewriter(copied, versions);
    Outcome outcome;
    Fixer fixer(
        options, [](Finding const&) { return true; }, [&](Edit const& edit) { rewriter.apply(edit); },
        [&](Finding const& finding, std::string_view reason) {
            outcome.reasons += finding.attribute + ": " + std::string(reason) + "\n";
        });
    if (auto const failure = readXml(checked, fixer)) outcome.failure = failure->message;
    fixer.finish();
    rewriter.finish();
    EXPECT_EQ(versions.before, document);
    outcome.document = versions.after;
    outcome.counts = fixer.counts();
    return outcome;
}

std::string inEncoding(std::string const& utf8, ByteEncoding encoding) {
    return encode(decode(utf8, ByteEncoding::Utf8), encoding);
}

TEST(Fix, ChangesTheCharactersOfValuesAndNothingElse) {
    struct Row {
        char const *name, *start;
        ByteEncoding encoding;
    };
    for (Row const& row :
         {Row{"UTF-8", "", ByteEncoding::Utf8}, Row{"UTF-8, marked", "\uFEFF", ByteEncoding::Utf8},
          Row{"UTF-16LE", "\uFEFF", ByteEncoding::Utf16Little}, Row{"UTF-16BE", "\uFEFF", ByteEncoding::Utf16Big},
          Row{"UTF-16BE, unmarked", "<?xml version='1.0' encoding='UTF-16'?>", ByteEncoding::Utf16Big},
          Row{"ISO-8859-1", "<?xml version='1.0' encoding='ISO-8859-1'?>", ByteEncoding::Latin1},
          Row{"windows-1252", "<?xml version='1.0' encoding='windows-1252'?>", ByteEncoding::Windows1252}}) {
        auto const document = [&](char const* path, char const* width, char const* style) {
            return inEncoding(row.start +
                                  "<!DOCTYPE svg>\r\n<svg xmlns = 'http://www.w3.org/2000/svg' id=\"é\"\r\n>\t"
                                  "<!-- d='l.5.5' -->\r<path d='"s +
                                  path + "' id='é'\twidth=\"" + width + "\" style='" + style + "'/></svg >\n\r\n",
                              row.encoding);
        };
        Outcome const outcome = fixDocument(
            document("M0 0&#10;l.5.5\r\n\t.5.5&#32;1&#x20;1", "1,5&#80;X", "/*é*/fill:#&#65;bc8;stroke-width : 2Px "));
        EXPECT_EQ(outcome.document, document("M0 0&#10;l.5 .5\r\n\t.5 .5&#32;1&#x20;1", "1.5px",
                                             "/*é*/fill:#&#65;bc8;stroke-width : 2Px "))
            << row.name;
        EXPECT_EQ(outcome.failure, "") << row.name;
    }
}

std::string const svg = "<svg xmlns='http://www.w3.org/2000/svg' ";
std::string const stylesheet =
    "<x:t xmlns:x='http://www.w3.org/1999/XSL/Transform' xmlns='http://www.w3.org/2000/svg'>";

TEST(Fix, WritesWhatTheDocumentCanHold) {
    struct Row {
        std::string before, after;
        bool takesSuggestions = false;
    };
    for (Row const& row :
         {Row{svg + "fill='#12345678'/>", svg + "fill='#12345678'/>"},
          Row{svg + "fill='#12345678' width='1 inch'/>", svg + "fill='#123456' width='1in'/>", true},
          Row{svg + "style='fill:RGB(1 2 3) /*x*/; stroke-width:2q;stroke : hsl(0,0%/**/,0%)'/>",
              svg + "style='fill:#010203 /*x*/; stroke-width:2q;stroke : hsl(0,0%/**/,0%)'/>"},
          Row{"<!DOCTYPE svg [<!ENTITY e '1PX'>]>" + svg + "width='1PX&lt;' height='1P&#88;'/>",
              "<!DOCTYPE svg [<!ENTITY e '1PX'>]>" + svg + "width='1PX&lt;' height='1px'/>"},
          Row{stylesheet + "<x:attribute-set><x:attribute name='width'> 1PX\n</x:attribute></x:attribute-set></x:t>",
              stylesheet +
                  "<x:attribute-set><x:attribute name='width'> 1px\n</x:attribute></x:attribute-set></x:t>"}}) {
        Outcome const outcome = fixDocument(row.before, {row.takesSuggestions});
        EXPECT_EQ(outcome.failure, "") << row.before;
        EXPECT_EQ(outcome.document, row.after);
    }
}

TEST(Fix, FollowsTheBranchesOfStylesheets) {
    auto const document = [](char const* first, char const* second) {
        return stylesheet + "<path><x:attribute name='d'><x:choose><x:when test='1'><x:text>" + first +
               "</x:text></x:when><x:otherwise>\n " + second + "\n</x:otherwise></x:choose></x:attribute></path></x:t>";
    };
    EXPECT_EQ(fixDocument(document("M0 0l.5.5", "M1 1l.5.5")).document, document("M0 0l.5 .5", "M1 1l.5 .5"));
}

TEST(Fix, WritesEachValueOfAnAnimation) {
    Outcome const outcome =
        fixDocument("<svg><animate attributeName='d' values='M0&#32;0l.5.5;M0 0; M1-1l.1.1 ;q'/></svg>");
    EXPECT_EQ(outcome.document, "<svg><animate attributeName='d' values='M0&#32;0l.5 .5;M0 0; M1-1l.1 .1 ;q'/></svg>");
    std::string const comma = "<svg><animate attributeName='r' values='1,5px'/></svg>";
    EXPECT_EQ(fixDocument(comma).document, comma) << "it may be meant for a semicolon";
}

TEST(Fix, TellsWhatItLeaves) {
    auto const made = [](std::string const& content) {
        return stylesheet + "<g><x:attribute name='width'>" + content + "</x:attribute></g></x:t>";
    };
    std::string const entity = "<!DOCTYPE svg [<!ENTITY e '1PX'><!ENTITY t '<g width=\"1PX\"/>'>]>" + svg;
    struct Row {
        std::string document, reasons;
        bool hasPlaces = true;
    };
    for (Row const& row :
         {Row{entity + "width='&e;'/>", "width: the value comes out of an entity\n"},
          Row{entity + ">&t;</svg>", "width: the value comes out of an entity\n"},
          Row{"<!DOCTYPE svg [<!ATTLIST svg width CDATA '1PX'>]>" + svg + "/>",
              "width: the value comes out of an entity\n"},
          Row{"<!DOCTYPE svg [<!ATTLIST svg width NMTOKENS ''>]>" + svg + "width='  1PX '/>",
              "width: the value comes out of an entity\n"},
          Row{svg + "style='stroke:hsl(0,0%/*x*/,0%)'/>", "stroke: there is a comment in the value\n"},
          Row{made("1P&#88;"), "width: the text of the element is not in one piece, or has references\n"},
          Row{made("<![CDATA[1PX]]>"), "width: the text of the element is not in one piece, or has references\n"},
          Row{made("1<!-- -->PX"), "width: the text of the element is not in one piece, or has references\n"},
          Row{stylesheet + "<g style='stroke-width:1,5;q:{{'/></x:t>",
              "stroke-width: the value is a template with doubled braces\nq: \n"},
          Row{svg + "width='1PX'/>", "width: the file is in an encoding in which nothing is rewritten\n", false},
          Row{svg + "width='q' widht='1' height='1'/>", "width: \nwidht: \n"}}) {
        Outcome const outcome = fixDocument(row.document, {false, row.hasPlaces});
        EXPECT_EQ(outcome.failure, "") << row.document;
        EXPECT_EQ(outcome.reasons, row.reasons) << row.document;
    }
}

TEST(Changes, MakeOneTextOfTheOther) {
    std::mt19937 random(16);
    auto const below = [&](std::size_t end) { return random() % end; };
    for (int round = 0; round < 2000; ++round) {
        std::u32string from, to;
        for (std::size_t length = below(80); from.size() < length;) from += U"01.,- é\U0001F600"[below(8)];
        for (char32_t const c : from) {
            if (below(12) == 0) to += U"01.,- é\U0001F600"[below(8)];
            if (below(12) != 0) to += c;
        }
        std::string text = encode(from, ByteEncoding::Utf8);
        std::string const other = encode(to, ByteEncoding::Utf8);
        std::vector<Change> const changes = changesBetween(text, other);
        for (auto change = changes.rbegin(); change != changes.rend(); ++change)
            text.replace(change->offset, change->length, encode(change->inserted, ByteEncoding::Utf8));
        ASSERT_EQ(text, other) << encode(from, ByteEncoding::Utf8);
    }
    EXPECT_EQ(changesBetween("M.5.5.5 10e-1", "M.5 .5 .5 1").size(), 3u) << "what stays between them is not written";
}

TEST(Fix, TakesTimeLinearInAValue) {
    std::string declarations, numbers;
    for (int i = 0; i < 40'000; ++i) declarations += "stroke-width:1,5;";
    while (numbers.size() < 60'000) numbers += ".5.5 ";
    Outcome const style = fixDocument(svg + "style='" + declarations + "'/>");
    EXPECT_EQ(style.counts.fixed, (FaultCounts{{Fault::BadValue, 40'000}}));
    Outcome const text =
        fixDocument(stylesheet + "<path><x:attribute name='d'>M0 0l" + numbers + "</x:attribute></path></x:t>");
    EXPECT_EQ(text.counts.fixed, (FaultCounts{{Fault::Misread, 1}})) << text.reasons;
    EXPECT_NE(text.document.find("M0 0l.5 .5 .5 .5 "), std::string::npos);
}

// The values of a document, as its reader tells them.
struct Values final : XmlHandler {
    std::vector<std::string> all;
    void startElement(XmlElement const& element, Tag&) override {
        for (XmlAttributeText const& attribute : element.attributes) all.emplace_back(attribute.value);
    }
};

std::string randomDocument(std::mt19937& random) {
    auto const oneOf = [&](auto const& rows) -> auto const& {
        return rows[random() % std::size(rows)];
    };
    constexpr char const* attributes[] = {"d", "transform", "points", "width", "fill", "style", "stroke-linecap", "q"};
    constexpr char const* values[] = {"M0 0l.5.5-1e-9 1",
                                      "translate(-1-1)",
                                      ".5.5 1,1",
                                      "1,5PX",
                                      "RGB(1 2 3)",
                                      " 1px",
                                      "fill:RGB(9 9 9);stroke-width:1PX;d:é",
                                      "ROUND",
                                      "é",
                                      "",
                                      "a.5.5 0 0 1 1 1",
                                      "stroke:hsl(0 0% 0%);fill: q",
                                      "12 px",
                                      "rotate(1.5.5)"};
    constexpr char const* blanks[] = {" ", "\n", "\r\n  ", "\t"};
    std::string document = oneOf(blanks) + "<svg xmlns='http://www.w3.org/2000/svg'>"s;
    for (std::size_t elements = random() % 20; elements-- > 0;) {
        document += "<path";
        std::set<std::string> names;
        for (std::size_t count = random() % 8; count-- > 0;) {
            std::string const name = oneOf(attributes);
            if (!names.insert(name).second) continue;
            char const quote = random() % 2 == 0 ? '"' : '\'';
            document += oneOf(blanks) + name + (random() % 3 == 0 ? " = " : "=") + quote;
            for (char32_t const c : decode(oneOf(values), ByteEncoding::Utf8)) {
                if (random() % 8 == 0)
                    document += "&#" + std::to_string(static_cast<unsigned>(c)) + ";";
                else
                    document += c == U' ' ? oneOf(blanks) : encode(std::u32string(1, c), ByteEncoding::Utf8);
            }
            document += quote;
        }
        document += random() % 2 == 0 ? "/>" : ">é&amp;</path\n>";
    }
    return document + "</svg>" + oneOf(blanks);
}

TEST(Fix, LeavesNothingToFixAndAllElseAsItWas) {
    std::mt19937 random(16);
    std::uint64_t fixed = 0;
    for (int round = 0; round < 300; ++round) {
        std::string const text = randomDocument(random);
        ByteEncoding const encoding =
            std::array{ByteEncoding::Utf8, ByteEncoding::Utf16Big, ByteEncoding::Utf16Little}[random() % 3];
        std::string const document = inEncoding((encoding == ByteEncoding::Utf8 ? "" : "\uFEFF") + text, encoding);
        // What a reader of the document is to find afterwards.
        struct Expected final : XmlHandler {
            Values values;
            Counts counts;
            std::size_t first = 0;
            std::ptrdiff_t shift = 0; // of a style attribute's declarations
            std::size_t last = SIZE_MAX;
            Checker checker{
                counts, [this](Finding const& finding) {
                    if (!finding.isExact) return;
                    if (finding.number != last) shift = 0;
                    last = finding.number;
                    auto const at = static_cast<std::size_t>(static_cast<std::ptrdiff_t>(finding.textOffset) + shift);
                    values.all[first + finding.number].replace(at, finding.text.size(), finding.replacement);
                    shift += std::ssize(finding.replacement) - std::ssize(finding.text);
                }};
            void startElement(XmlElement const& element, Tag& tag) override {
                first = values.all.size();
                last = SIZE_MAX;
                values.startElement(element, tag);
                checker.startElement(element, tag);
            }
        } expected;
        MemorySource source(document);
        ASSERT_FALSE(readXml(source, expected)) << text;

        Outcome const once = fixDocument(document);
        Values values;
        MemorySource rewritten(once.document);
        ASSERT_FALSE(readXml(rewritten, values)) << once.document;
        EXPECT_EQ(values.all, expected.values.all) << text;
        Outcome const twice = fixDocument(once.document);
        EXPECT_EQ(twice.document, once.document);
        EXPECT_EQ(twice.counts.left, once.counts.left) << text;
        for (auto const& [fault, count] : once.counts.fixed) fixed += count;
    }
    EXPECT_GT(fixed, 500u);
}

// Fails, or ends the process, at one of its operations; at a write after half of the bytes.
class FaultySystem final : public FileSystem {
public:
    FaultySystem(int operations, bool isDeadly) : operations(operations), isDeadly(isDeadly) {}

    bool create(std::filesystem::path const& path, std::filesystem::path const& like, int& file) override {
        fault();
        return FileSystem::create(path, like, file);
    }
    void write(int file, std::string_view bytes) override {
        FileSystem::write(file, bytes.substr(0, bytes.size() / 2));
        fault();
        FileSystem::write(file, bytes.substr(bytes.size() / 2));
    }
    void sync(int file) override {
        fault();
        FileSystem::sync(file);
    }
    void close(int file) override {
        fault();
        FileSystem::close(file);
    }
    void rename(std::filesystem::path const& from, std::filesystem::path const& to) override {
        fault();
        FileSystem::rename(from, to);
    }

private:
    void fault() {
        if (operations-- > 0) return;
        if (isDeadly) _exit(3);
        throw std::system_error(ENOSPC, std::generic_category());
    }

    int operations;
    bool isDeadly;
};

// The number that the next file gets.
int nextDescriptor() {
    int const file = open("/dev/null", O_RDONLY);
    close(file);
    return file;
}

TEST(ReplacedFile, IsTheOldOneOrTheNewOneWhateverFails) {
    namespace fs = std::filesystem;
    fs::path const folder = fs::path(testing::TempDir()) / ("xmlattr-replaced" + std::to_string(getpid()));
    fs::path const path = folder / "document";
    std::string const old(200'000, 'o'), changed(300'000, 'n');
    auto const content = [&] {
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    for (bool const isDeadly : {false, true}) {
        bool isDone = false;
        int operations = 0;
        for (; !isDone; ++operations) {
            fs::remove_all(folder);
            fs::create_directories(folder);
            std::ofstream(path, std::ios::binary) << old;
            pid_t const child = fork();
            if (child == 0) {
                FaultySystem system(operations, isDeadly);
                int const next = nextDescriptor();
                std::set<fs::path> folders;
                try {
                    ReplacedFile file(system, folders, path, path);
                    for (std::size_t at = 0; at < changed.size(); at += 50'000) file.keep(changed.substr(at, 50'000));
                    file.finish();
                } catch (RewriteFailure const&) {
                    _exit(1);
                }
                _exit(nextDescriptor() == next ? 0 : 2);
            }
            int status = 0;
            waitpid(child, &status, 0);
            ASSERT_FALSE(WIFEXITED(status) && WEXITSTATUS(status) == 2) << "a file stays open";
            isDone = WIFEXITED(status) && WEXITSTATUS(status) == 0;
            EXPECT_EQ(content(), isDone ? changed : old) << operations;
            if (!isDeadly) {
                EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1) << "nothing stays beside it";
            }
        }
        EXPECT_GE(operations, 8) << "each was reached";
    }
    fs::remove_all(folder);
}

} // namespace
} // namespace Command
