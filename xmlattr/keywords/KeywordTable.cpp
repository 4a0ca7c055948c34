#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Text.h"

#include <algorithm>

namespace Xml::detail {

template <Case rule>
PackedKeyword const* findWord(PackedKeyword const* rows, char16_t const* letters, std::uint8_t const* slots,
                              std::u16string_view text, std::uint64_t factor) {
    PackedKeyword const& row = rows[slots[slotOf(markOf<rule>(text), factor)]];
    if (row.length != text.size()) return nullptr;
    char16_t const* const word = letters + row.start;
    if constexpr (rule == Case::Exact)
        return std::equal(text.begin(), text.end(), word) ? &row : nullptr;
    else
        return Core::equalsNoCase({word, row.length}, text) ? &row : nullptr;
}

template PackedKeyword const* findWord<Case::Exact>(PackedKeyword const*, char16_t const*, std::uint8_t const*,
                                                    std::u16string_view, std::uint64_t);
template PackedKeyword const* findWord<Case::Any>(PackedKeyword const*, char16_t const*, std::uint8_t const*,
                                                  std::u16string_view, std::uint64_t);

// From the last row to the first, without a branch that depends on the value: which row matches cannot
// be predicted, and leaving the loop early costs more than the rest of a table.
PackedKeyword const* findValue(std::span<PackedKeyword const> rows, std::int32_t value) {
    PackedKeyword const* found = nullptr;
    for (std::size_t i = rows.size(); i > 0; --i) found = rows[i - 1].value == value ? &rows[i - 1] : found;
    return found;
}

void throwUnknownKeyword() {
    throw Core::UnreacheableCodeException("KeywordTable", __LINE__);
}

} // namespace Xml::detail
