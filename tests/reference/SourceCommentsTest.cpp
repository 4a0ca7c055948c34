#include "tools/reference/text/SourceComments.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace Reference {
namespace {

namespace fs = std::filesystem;

std::string textsOf(std::vector<Oddity> const& oddities) {
    std::string texts;
    for (Oddity const& oddity : oddities) texts += oddity.file + ": " + oddity.text + oddity.code + "\n";
    return texts;
}

TEST(SourceComments, BelongToTheTypeThatIsDeclaredLast) {
    fs::path const folder = fs::path(testing::TempDir()) / "xmlattr-sources";
    fs::create_directories(folder / "xmlattr");
    std::ofstream(folder / "xmlattr/ValueTypes.inc") << "// Lengths\n#include \"a.h\"\nXMLATTR_PUBLIC_VALUE(Length)\n";
    std::ofstream(folder / "xmlattr/a.h") << "// A length.\nclass Length {\n    // Intended: as here.\n    int a;\n};\n"
                                             "template <> struct AttributeTraits<Length> {\n"
                                             "    int b; // Intended: there.\n};\n"
                                             "struct Other {\n    // Intended: elsewhere.\n    int c;\n};\n";
    std::ofstream(folder / "xmlattr/a.cpp") << "bool Length::read() {\n    // Intended: in\n    // NOLINTNEXTLINE(x): "
                                               "a reason\n    // two lines.\n    f();\n}\n"
                                               "void other() {\n    // Intended: again.\n    g();\n}\n";
    SourceComments const comments(folder);
    EXPECT_EQ(comments.families().front().types, std::vector<std::string>{"Length"});
    EXPECT_EQ(comments.above("Length"), std::vector<Comment>{{"A length."}});
    EXPECT_EQ(textsOf(comments.oddities("Length")),
              "xmlattr/a.cpp: in two lines.\nxmlattr/a.h: as here.\nxmlattr/a.h: there.int b;\n");
    EXPECT_EQ(textsOf(comments.oddities("")), "xmlattr/a.cpp: again.\nxmlattr/a.h: elsewhere.\n");
    fs::remove_all(folder);
}

} // namespace
} // namespace Reference
