// The lines of paths, points and transforms.
#pragma once

#include "xmlattr/catalogue/AttributeType.h"

#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace Command {

struct Spot {
    double x = 0, y = 0;
};

// Grows over the points that it is told of.
struct Box {
    double left = std::numeric_limits<double>::infinity(), top = left, right = -left, bottom = -left;
    bool isFinite = true;

    void add(Spot at);
    void add(Box const& other);
    // What is so far out that the rest would be tiny is left out of the picture.
    void addNear(Box const& other);
    // What can be drawn: neither empty nor out of all proportion.
    bool isSound() const;
};

// Lines to be drawn in a frame.
struct Shape {
    std::string path;
    std::string reference{}; // what is there before, of a transform
    Box box{};
};

// Of a value that is a list of these; nothing of others and of what cannot be drawn.
std::optional<Shape> shapeOf(Xml::AnyAttribute const& value);

// As markup, with some room around the box.
std::string drawn(Shape const& shape, Box const& box, std::string_view label);

} // namespace Command
