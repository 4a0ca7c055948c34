// A page of the reference, in Markdown. Prose is wrapped; rows of tables are not, since they cannot be.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace Reference {

using Row = std::vector<std::string>;

class Page {
public:
    // The file within the folder of the pages.
    Page(std::string newFile, std::string_view title);

    void heading(int level, std::string_view title);
    // Markdown, which is wrapped; markdownOf makes it from plain text.
    void paragraph(std::string_view markdown);
    void item(std::string_view markdown);
    void code(std::vector<std::string> const& lines);
    // Bars within a cell are escaped. A table without rows is left out.
    void table(Row const& titles, std::vector<Row> const& rows);

    std::string const& file() const { return fileName; }
    std::string const& title() const { return pageTitle; }
    std::string const& text() const { return markdownText; }

private:
    void block(std::string_view markdown, std::string_view firstIndent, std::string_view indent);

    std::string fileName, pageTitle, markdownText;
    bool endsWithItem = false;
};

// Plain text as Markdown shows it unchanged.
std::string markdownOf(std::string_view plain);

// A text as code. One that is empty, or has white space at an end, stands in quotation marks, and what is no
// printable ASCII stands as its number.
std::string codeOf(std::u16string_view text);
std::string codeOf(std::string_view ascii);

// "a, b and c".
std::string listOf(std::vector<std::string> const& items, std::string_view last = "and");

// Where a heading with this text is linked to.
std::string anchorOf(std::string_view title);

std::string narrow(std::u16string_view ascii);

} // namespace Reference
