#include "checking/FilterResults.h"

#include <algorithm>

namespace Command {

namespace {

constexpr std::string_view inputs[] = {"SourceGraphic",   "SourceAlpha", "BackgroundImage",
                                       "BackgroundAlpha", "FillPaint",   "StrokePaint"};

} // namespace

std::optional<std::size_t> FilterResults::startElement(XmlElement const& element) {
    if (filterDepth && element.depth <= *filterDepth) filterDepth.reset();
    if (element.name == "filter") {
        filterDepth = element.depth;
        results.clear();
    }
    std::optional<std::size_t> missing;
    if (!filterDepth || !element.name.starts_with("fe")) return missing;
    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
        auto const& [space, name, value] = element.attributes[i];
        bool const isInput = space.empty() && (name == "in" || name == "in2");
        if (!isInput || missing || results.contains(value)) continue;
        if (std::ranges::find(inputs, value) == std::end(inputs)) missing = i;
    }
    for (XmlAttributeText const& attribute : element.attributes)
        if (attribute.space.empty() && attribute.name == "result") results.emplace(attribute.value);
    return missing;
}

} // namespace Command
