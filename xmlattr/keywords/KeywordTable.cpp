#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Text.h"

#include <cstring>

namespace Xml::detail {

PackedKeyword const* findWord(KeywordView table, std::u16string_view text, Case rule) {
    for (PackedKeyword const& row : table.rows) {
        if (row.length != text.size()) continue;
        bool const isEqual = rule == Case::Exact ? std::memcmp(table.letters + row.start, text.data(),
                                                               text.size() * sizeof(char16_t)) == 0
                                                 : Core::equalsNoCase(table.word(row), text);
        if (isEqual) return &row;
    }
    return nullptr;
}

PackedKeyword const* findValue(KeywordView table, std::int32_t value) {
    for (PackedKeyword const& row : table.rows)
        if (row.value == value) return &row;
    return nullptr;
}

void throwUnknownKeyword() {
    throw Core::UnreacheableCodeException("KeywordTable", __LINE__);
}

} // namespace Xml::detail
