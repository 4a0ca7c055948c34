#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Text.h"

#include <cstring>

namespace Xml::detail {

namespace {

inline bool isWord(KeywordView table, PackedKeyword const& row, std::u16string_view text, Case rule) {
    if (row.length != text.size()) return false;
    if (rule == Case::Any) return Core::equalsNoCase(table.word(row), text);
    return std::memcmp(table.letters + row.start, text.data(), text.size() * sizeof(char16_t)) == 0;
}

// Looks at the mark of every row, without a branch that depends on the text: which row matches cannot
// be predicted, and leaving the loop early costs more than the rest of a table.
PackedKeyword const* findMark(std::span<PackedKeyword const> rows, std::uint64_t mark) {
    PackedKeyword const* found = nullptr;
#pragma GCC unroll 4
    for (PackedKeyword const& row : rows) found = row.mark == mark ? &row : found;
    return found;
}

} // namespace

// A row without the text's mark is not its word; when the row that has it is another word, another
// row may have it too.
PackedKeyword const* findWord(std::span<PackedKeyword const> rows, char16_t const* letters, std::u16string_view text,
                              Case rule) {
    KeywordView const table{rows, letters};
    auto const* const row = findMark(rows, rule == Case::Exact ? markOf(text, Case::Exact) : markOf(text, Case::Any));
    return !row || isWord(table, *row, text, rule) ? row : findWordSlowly(table, text, rule);
}

PackedKeyword const* findWordSlowly(KeywordView table, std::u16string_view text, Case rule) {
    for (PackedKeyword const& row : table.rows)
        if (isWord(table, row, text, rule)) return &row;
    return nullptr;
}

// From the last row to the first, without a branch that depends on the value, as in findMark.
PackedKeyword const* findValue(std::span<PackedKeyword const> rows, std::int32_t value) {
    PackedKeyword const* found = nullptr;
    for (std::size_t i = rows.size(); i > 0; --i) found = rows[i - 1].value == value ? &rows[i - 1] : found;
    return found;
}

void throwUnknownKeyword() {
    throw Core::UnreacheableCodeException("KeywordTable", __LINE__);
}

} // namespace Xml::detail
