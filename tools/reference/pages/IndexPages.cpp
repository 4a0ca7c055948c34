// The pages that lead to the others, and what belongs to no other.
#include "tools/reference/pages/Pages.h"

#include "xmlattr/catalogue/AttributeType.h"

#include <algorithm>

namespace Reference {

std::string lineOf(Oddity const& oddity) {
    std::string line = markdownOf(oddity.text);
    if (!oddity.code.empty()) line += ": `" + oddity.code + "`";
    return line + " (`" + oddity.file + "`)";
}

Page oddityPage(SourceComments const& comments) {
    Page page("oddities.md", "Deliberate oddities that types share");
    page.paragraph("Behaviour that looks wrong and is relied on. What belongs to one type is on the page of that type; "
                   "this page has "
                   "the rest.");
    for (Oddity const& oddity : comments.oddities("")) page.item(lineOf(oddity));
    return page;
}

Page indexPage(SourceComments const& comments, std::vector<Page> const& others) {
    Page page("README.md", "Reference");
    page.paragraph(
        "What the library reads and prints, written by a program from its tables and comments. Every text on these "
        "pages "
        "was read by the type whose page it is, and every print was printed. Sizes are those of 64-bit Linux; a "
        "keyword "
        "takes 4 bytes, its attribute 16. `./dev docs` writes the pages anew; a test compares them with the library.");
    page.heading(2, "Pages");
    for (Page const& other : others) page.item("[" + other.title() + "](" + other.file() + ")");
    page.heading(2, "Value types");
    std::vector<Row> rows;
    for (Family const& family : comments.families())
        for (std::string const& type : family.types)
            rows.push_back({"[`" + type + "`](" + fileOf(family) + "#" + anchorOf(type) + ")", family.name,
                            Xml::AttributeType::find(type)->isPublic() ? "" : "internal"});
    std::ranges::sort(rows);
    page.table({"type", "page", ""}, rows);
    return page;
}

std::vector<Page> allPages(SourceComments const& comments) {
    std::vector<Page> pages;
    for (std::vector<Page> const& some : {typePages(comments), tablePages(), cataloguePages()})
        pages.insert(pages.end(), some.begin(), some.end());
    pages.push_back(oddityPage(comments));
    pages.insert(pages.begin(), indexPage(comments, pages));
    return pages;
}

} // namespace Reference
