// Whether what a filter primitive of SVG reads is there.
#pragma once

#include "xml/XmlReader.h"

#include <optional>
#include <set>
#include <string>

namespace Command {

// Follows the elements of SVG in a document, in their order.
class FilterResults {
public:
    // The number of the attribute, in or in2, that names no result of a primitive before it in the same filter and
    // none of the inputs that every filter has; the first of them.
    std::optional<std::size_t> startElement(XmlElement const& element);

private:
    std::optional<int> filterDepth;
    std::set<std::string, std::less<>> results;
};

} // namespace Command
