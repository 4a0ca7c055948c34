#include "tools/reference/text/Changes.h"

#include <gtest/gtest.h>

namespace Reference {
namespace {

TEST(Changes, ShowsWhatDiffersBelowItsHeading) {
    std::string const grammar(100, 'x');
    struct Row {
        char const* what;
        std::string before, after, expected;
    };
    for (Row const& row : {
             Row{"nothing", "# A\n\ntext\n", "# A\n\ntext\n", ""},
             Row{"a cell", "# A\n\n| a | 1 |\n| b | 2 |\n", "# A\n\n| a | 1 |\n| b | 3 |\n",
                 "  # A\n- | b | 2 |\n        ~\n+ | b | 3 |\n        ~\n"},
             Row{"a row that is gone", "# A\n## B\n| a |\n| b |\n", "# A\n## B\n| a |\n", "  ## B\n- | b |\n"},
             Row{"two rows in the other order", "# A\n| a |\n| b |\n", "# A\n| b |\n| a |\n",
                 "  # A\n- | a |\n+ | a |\n"},
             Row{"two rows before one that stays", "# A\n| c |\n", "# A\n| a |\n| b |\n| c |\n",
                 "  # A\n+ | a |\n+ | b |\n"},
             Row{"another heading first", "# B\n| b |\n", "# A\n| a |\n# B\n| b |\n", "+ # A\n+ | a |\n"},
             Row{"a word of a paragraph that is wrapped otherwise", "# A\n\none two\nthree\n", "# A\n\none\ntwo four\n",
                 "  # A\n- one two three\n          ~~~~~\n+ one two four\n          ~~~~\n"},
             Row{"the end of a long row", "# A\n| " + grammar + " | yes |\n", "# A\n| " + grammar + " | no |\n",
                 "  # A\n- | " + grammar.substr(0, 38) + " ... " + grammar.substr(0, 37) + " | yes |\n" +
                     std::string(87, ' ') + "~~~\n+ | " + grammar.substr(0, 38) + " ... " + grammar.substr(0, 37) +
                     " | no |\n" + std::string(87, ' ') + "~~\n"},
             Row{"line breaks", "# A\n\none\ntwo\n", "# A\n\none two\n", "  differs in its lines alone\n"},
             Row{"a page that is missing", "", "# A\n", "+ # A\n"},
         }) {
        EXPECT_EQ(changesBetween(row.before, row.after), row.expected) << row.what;
    }
}

} // namespace
} // namespace Reference
