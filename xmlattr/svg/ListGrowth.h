// Room for the lists that are read from long texts.
#pragma once

#include "xmlattr/core/String.h"

#include <algorithm>
#include <cstddef>

namespace Xml {

// Makes room for one more element of a list of which `taken` of `total` code units are read: for as many as the rest of
// the text suggests, so that a long list moves only a few times, and not for as many as a text of its length may have.
// `usual` is the number of code units in an element, as a first guess. The room is at most eight times the elements that
// are there, so that memory follows the list and not the text, and at least one quarter more than them, so that all
// moves together take time in proportion to the list.
template <std::ptrdiff_t usual, class T>
void growList(Core::Vector<T>& list, std::ptrdiff_t taken, std::ptrdiff_t total) {
    std::size_t const size = list.size();
    if (size == 0) {
        list.reserve(static_cast<std::size_t>(std::min<std::ptrdiff_t>(total / usual + 1, 16)));
        return;
    }
    std::size_t const least = size + size / 4 + 1, most = 8 * size;
    double const suggested =
        static_cast<double>(size) * static_cast<double>(total) / static_cast<double>(taken + usual);
    list.reserve(suggested < static_cast<double>(most) ? (std::max)(least, static_cast<std::size_t>(suggested * 1.0625))
                                                       : most);
}

} // namespace Xml
