#include "output/html/Shape.h"

#include "output/html/Markup.h"
#include "xmlattr/catalogue/grammar/SvgLists.h"
#include "xmlattr/svg/PathData.h"
#include "xmlattr/svg/Point.h"
#include "xmlattr/svg/Transform.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace Command {

namespace {

class PathOutline {
public:
    // A command as it is, so that the browser resolves it; its points count for the frame.
    void add(Xml::PathDataCommand const& command) {
        using enum Xml::PathCommandKind;
        shape.path += Xml::letterOf(command);
        origin = command.relative ? at : Spot();
        std::int32_t const before = std::exchange(kind, command.kind);
        Spot const to{command.x.pxSize(), command.y.pxSize()};
        switch (static_cast<Xml::PathCommandKind>(command.kind)) {
        case ClosePath: at = start; return;
        case HorizontalLineTo: write(to.x); return moveTo({origin.x + to.x, at.y});
        case VerticalLineTo: write(to.y); return moveTo({at.x, origin.y + to.y});
        case CurveTo:
            control({command.x1.pxSize(), command.y1.pxSize()});
            control({command.x2.pxSize(), command.y2.pxSize()});
            break;
        case SmoothCurveTo:
            mirror(before == CurveTo || before == SmoothCurveTo);
            control({command.x2.pxSize(), command.y2.pxSize()});
            break;
        case QuadraticCurveTo: control({command.x1.pxSize(), command.y1.pxSize()}); break;
        case ArcTo: arc(command, {origin.x + to.x, origin.y + to.y}); break;
        case SmoothQuadraticCurveTo: mirror(before == QuadraticCurveTo || before == SmoothQuadraticCurveTo); break;
        case MoveTo:
        case LineTo: break;
        }
        write(to.x);
        write(to.y);
        moveTo({origin.x + to.x, origin.y + to.y});
        if (command.kind == MoveTo) start = at;
    }

    Shape shape;

private:
    void write(double value) { shape.path += number(value) + " "; }

    void moveTo(Spot to) {
        at = to;
        shape.box.add(at);
    }

    void control(Spot point) {
        write(point.x);
        write(point.y);
        lastControl = {origin.x + point.x, origin.y + point.y};
        shape.box.add(lastControl);
    }

    // The control point that a smooth curve does not name mirrors the last one of a curve of its own degree.
    void mirror(bool continues) {
        lastControl = continues ? Spot{2 * at.x - lastControl.x, 2 * at.y - lastControl.y} : at;
        shape.box.add(lastControl);
    }

    // The box of a circle that the arc fits in: of its own circle for the larger arc, else of one about the middle of
    // the two ends. An ellipse counts as the circle of its greater radius.
    void arc(Xml::PathDataCommand const& command, Spot to) {
        double const rx = std::abs(command.rx.pxSize()), ry = std::abs(command.ry.pxSize());
        for (double const value : {rx, ry, double{command.xAxisRotation}}) write(value);
        write(command.largeArc ? 1 : 0);
        write(command.sweep ? 1 : 0);
        if (rx == 0 || ry == 0) return; // a line
        Spot middle{(at.x + to.x) / 2, (at.y + to.y) / 2}, half{(at.x - to.x) / 2, (at.y - to.y) / 2};
        double const reach = std::max({std::hypot(half.x, half.y), rx, ry});
        double const square = half.x * half.x + half.y * half.y;
        if (command.largeArc && square > 0) { // the centre by SVG 1.1, section F.6.5
            double const along = std::sqrt(std::max(0.0, reach * reach - square) / square) * (command.sweep ? -1 : 1);
            middle = {middle.x + along * half.y, middle.y - along * half.x};
        }
        shape.box.add(Spot{middle.x - reach, middle.y - reach});
        shape.box.add(Spot{middle.x + reach, middle.y + reach});
    }

    Spot at, start, origin, lastControl;
    std::int32_t kind = 0; // of the last command
};

Shape shapeOf(Core::Vector<Xml::PathDataCommand> const& commands) {
    PathOutline outline;
    // Nothing is drawn before the first move.
    for (Xml::PathDataCommand const& command : commands)
        if (!outline.shape.path.empty() || command.kind == Xml::PathCommandKind::MoveTo) outline.add(command);
    return std::move(outline.shape);
}

Shape shapeOf(Core::Vector<Xml::Point> const& points) {
    Shape shape;
    for (Xml::Point const& point : points) {
        Spot const at{point.x.pxSize(), point.y.pxSize()};
        shape.path += (shape.path.empty() ? "M" : "L") + number(at.x) + " " + number(at.y);
        shape.box.add(at);
    }
    return shape;
}

// x' = a x + c y + e, y' = b x + d y + f.
struct Matrix {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    Spot of(Spot at) const { return {a * at.x + c * at.y + e, b * at.x + d * at.y + f}; }
    Matrix operator*(Matrix const& m) const {
        return {a * m.a + c * m.b, b * m.a + d * m.b,     a * m.c + c * m.d,
                b * m.c + d * m.d, a * m.e + c * m.f + e, b * m.e + d * m.f + f};
    }
};

Matrix matrixOf(Xml::Transform const& transform) {
    auto const radians = [](double degrees) { return degrees * std::numbers::pi / 180; };
    switch (transform.type) {
    case Xml::TransformType::Matrix: {
        double const* const m = transform.matrix;
        return {m[0], m[1], m[2], m[3], m[4], m[5]};
    }
    case Xml::TransformType::Translate:
        return {.e = transform.tx.getValue().pxSize(), .f = transform.ty.getValue().pxSize()};
    case Xml::TransformType::Scale: return {.a = transform.sx, .d = transform.sy};
    case Xml::TransformType::Rotate: {
        double const x = transform.cx.getValue().pxSize(), y = transform.cy.getValue().pxSize();
        double const cos = std::cos(radians(transform.angle)), sin = std::sin(radians(transform.angle));
        return Matrix{.e = x, .f = y} * Matrix{cos, sin, -sin, cos, 0, 0} * Matrix{.e = -x, .f = -y};
    }
    case Xml::TransformType::SkewX: return {.c = std::tan(radians(transform.skewAngleX))};
    case Xml::TransformType::SkewY: return {.b = std::tan(radians(transform.skewAngleY))};
    }
    return {};
}

// A square with a flag in its first corner, where it comes to lie and where it was.
Shape shapeOf(Core::Vector<Xml::Transform> const& transforms) {
    Matrix all;
    for (Xml::Transform const& transform : transforms) all = all * matrixOf(transform);
    constexpr std::array<Spot, 7> square{{{0, 0}, {100, 0}, {100, 100}, {0, 100}, {0, 0}, {40, 0}, {0, 40}}};
    Shape shape;
    for (Spot const corner : square) {
        auto const draw = [&](std::string& path, Spot at) {
            path += (path.empty() ? "M" : "L") + number(at.x) + " " + number(at.y);
            shape.box.add(at);
        };
        draw(shape.reference, corner);
        draw(shape.path, all.of(corner));
    }
    return shape;
}

template <class List> std::optional<Shape> shapeOfList(Xml::AnyAttribute const& value) {
    auto const* const attribute = dynamic_cast<Xml::TXmlAttribute<List> const*>(&*value);
    return attribute ? std::optional(shapeOf(attribute->getValue())) : std::nullopt;
}

// With some room around.
std::string frame(Box const& box) {
    double const side = std::max({box.right - box.left, box.bottom - box.top, 1e-3});
    double const margin = side * 0.06;
    return number(box.left - margin) + " " + number(box.top - margin) + " " +
           number(box.right - box.left + 2 * margin) + " " + number(box.bottom - box.top + 2 * margin);
}

} // namespace

void Box::add(Spot at) {
    left = std::min(left, at.x);
    right = std::max(right, at.x);
    top = std::min(top, at.y);
    bottom = std::max(bottom, at.y);
    isFinite = isFinite && std::isfinite(at.x) && std::isfinite(at.y);
}

void Box::add(Box const& other) {
    add(Spot{other.left, other.top});
    add(Spot{other.right, other.bottom});
}

void Box::addNear(Box const& other) {
    double const reach = std::max(right - left, bottom - top) * 0.6;
    if (reach == 0) return add(other);
    Box const near{left - reach, top - reach, right + reach, bottom + reach};
    auto const clamped = [&](double x, double y) {
        return Spot{std::clamp(x, near.left, near.right), std::clamp(y, near.top, near.bottom)};
    };
    add(clamped(other.left, other.top));
    add(clamped(other.right, other.bottom));
}

bool Box::isSound() const {
    constexpr double most = 1e7;
    return isFinite && left <= right && std::max({-left, -top, right, bottom}) < most;
}

std::optional<Shape> shapeOf(Xml::AnyAttribute const& value) {
    std::optional<Shape> shape = shapeOfList<Core::Vector<Xml::PathDataCommand>>(value);
    if (!shape) shape = shapeOfList<Core::Vector<Xml::Point>>(value);
    if (!shape) shape = shapeOfList<Core::Vector<Xml::Transform>>(value);
    if (shape && !shape->box.isSound()) shape.reset();
    return shape;
}

std::string drawn(Shape const& shape, Box const& box, std::string_view label) {
    std::string svg = "<svg class='shape' role='img' viewBox='" + frame(box) + "'><title>";
    svg.append(label).append("</title>");
    if (!shape.reference.empty()) svg += "<path class='was' d='" + shape.reference + "'/>";
    return svg + "<path d='" + shape.path + "'/></svg>";
}

} // namespace Command
