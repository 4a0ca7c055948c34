#include "ValueTypes.h"

namespace Command {

namespace {

struct Row {
    std::string_view type, syntax;
};

constexpr Row rows[] = {
    {"int", "a whole number"},
    {"float", "a number"},
    {"Core::String", "any text"},
    {"Drawing::RectF", "rect(LENGTH, LENGTH, LENGTH, LENGTH)"},
    {"Drawing::ImageFilter", "nearest, bilinear, bicubic or auto"},
    {"Length", "a number with px, pt, pc, cm, mm, in, em or ex, or 0"},
    {"SLength", "a number, with or without a unit, or a percentage"},
    {"DLength", "one or two lengths"},
    {"SNullableLength", "a number, with or without a unit, or a percentage"},
    {"Core::Vector<SLength>", "a list of SVG lengths, or none"},
};

} // namespace

std::string_view ValueType::syntax() const {
    for (Row const& row : rows)
        if (row.type == name) return row.syntax;
    return {};
}

} // namespace Command
