// The word table of an array of names.
#pragma once

#include "xmlattr/core/WordTable.h"

#include <array>
#include <cstddef>
#include <iterator>

namespace Xml {

template <auto const& names>
inline constexpr auto nameRows = [] {
    std::array<Core::WordRow<Core::Valueless, char>, std::size(names)> rows{};
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].word = names[i];
    return rows;
}();

template <auto const& names> using NameTable = Core::WordTable<nameRows<names>>;

} // namespace Xml
