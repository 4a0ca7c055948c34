#include "tools/reference/text/Page.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace Reference {

namespace {

constexpr std::size_t mostColumns = 120;

std::string cellOf(std::string_view text) {
    std::string cell;
    for (char const c : text) (c == '|' ? cell += '\\' : cell) += c;
    return cell;
}

// A code span is one word, so that no line ends within it.
std::size_t endOfWord(std::string_view text) {
    bool isCode = false;
    std::size_t i = 0;
    for (; i < text.size() && (isCode || text[i] != ' '); ++i)
        if (text[i] == '`') isCode = !isCode;
    return i;
}

} // namespace

Page::Page(std::string newFile, std::string_view title) : fileName(std::move(newFile)), pageTitle(title) {
    markdownText = "# " + pageTitle + "\n";
}

void Page::heading(int level, std::string_view title) {
    markdownText.append("\n").append(static_cast<std::size_t>(level), '#').append(" ").append(title).append("\n");
    endsWithItem = false;
}

void Page::block(std::string_view markdown, std::string_view firstIndent, std::string_view indent) {
    std::string line(firstIndent);
    bool isEmpty = true;
    while (!markdown.empty()) {
        std::size_t const size = endOfWord(markdown);
        std::string_view const word = markdown.substr(0, size);
        if (!isEmpty && line.size() + 1 + size > mostColumns) {
            markdownText.append(line).append("\n");
            line = indent;
            isEmpty = true;
        }
        if (!word.empty()) line.append(isEmpty ? "" : " ").append(word);
        isEmpty &= word.empty();
        markdown.remove_prefix(std::min(size + 1, markdown.size()));
    }
    markdownText.append(line).append("\n");
}

void Page::paragraph(std::string_view markdown) {
    markdownText += "\n";
    block(markdown, "", "");
    endsWithItem = false;
}

void Page::item(std::string_view markdown) {
    if (!endsWithItem) markdownText += "\n";
    block(markdown, "- ", "  ");
    endsWithItem = true;
}

void Page::code(std::vector<std::string> const& lines) {
    markdownText += "\n```\n";
    for (std::string const& line : lines) markdownText.append(line).append("\n");
    markdownText += "```\n";
    endsWithItem = false;
}

void Page::table(Row const& titles, std::vector<Row> const& rows) {
    if (rows.empty()) return;
    auto const add = [&](Row const& row) {
        for (std::string const& cell : row)
            markdownText.append("| ").append(cellOf(cell)).append(cell.empty() ? "" : " ");
        markdownText += "|\n";
    };
    markdownText += "\n";
    add(titles);
    add(Row(titles.size(), "---"));
    for (Row const& row : rows) add(row);
    endsWithItem = false;
}

std::string markdownOf(std::string_view plain) {
    std::string markdown;
    for (char const c : plain) {
        if (std::string_view("<*\\[]").find(c) != std::string_view::npos) markdown += '\\';
        markdown += c;
    }
    return markdown;
}

std::string codeOf(std::u16string_view text) {
    std::string shown;
    for (char16_t const unit : text) {
        char number[16];
        std::snprintf(number, sizeof number, "\\u{%04X}", static_cast<unsigned int>(unit));
        if (unit >= u' ' && unit < u'\x7F')
            shown += static_cast<char>(unit);
        else
            shown += number;
    }
    bool const isQuoted = shown.empty() || shown.front() == ' ' || shown.back() == ' ' || shown.front() == '"';
    return isQuoted ? "`\"" + shown + "\"`" : "`" + shown + "`";
}

std::string codeOf(std::string_view ascii) {
    return codeOf(std::u16string(ascii.begin(), ascii.end()));
}

std::string listOf(std::vector<std::string> const& items, std::string_view last) {
    std::string line;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i > 0) line.append(i + 1 < items.size() ? ", " : " " + std::string(last) + " ");
        line += items[i];
    }
    return line;
}

std::string anchorOf(std::string_view title) {
    std::string anchor;
    for (char const c : title) {
        if (std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_')
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        else if (c == ' ')
            anchor += '-';
    }
    return anchor;
}

std::string narrow(std::u16string_view ascii) {
    std::string text;
    for (char16_t const unit : ascii) text += static_cast<char>(unit);
    return text;
}

} // namespace Reference
