// The smallest box that holds a path of SVG, in pixels: a curve need not reach its control points.
//
//   bounding-box PATH_DATA...
#include <xmlattr/xmlattr.h>

#include <algorithm>
#include <cmath>
#include <iostream>

namespace {

struct Range {
    double least = HUGE_VAL, most = -HUGE_VAL;

    void add(double number) {
        least = std::min(least, number);
        most = std::max(most, number);
    }

    // A cubic curve along one axis: its ends, and where it turns.
    void addCurve(double a, double b, double c, double d) {
        add(d);
        double const square = d - 3 * c + 3 * b - a, linear = 2 * (c - 2 * b + a), constant = b - a;
        double const root = std::sqrt(linear * linear - 4 * square * constant);
        for (double const t : {(-linear + root) / (2 * square), (-linear - root) / (2 * square), -constant / linear}) {
            if (!(t > 0 && t < 1)) continue; // also where there is no turn
            double const s = 1 - t;
            add(s * s * s * a + 3 * s * s * t * b + 3 * s * t * t * c + t * t * t * d);
        }
    }
};

struct Place {
    double x = 0, y = 0;

    friend Place operator+(Place a, Place b) { return {a.x + b.x, a.y + b.y}; }
    // On the line from a to b, at a part of its length; 2 mirrors a on b.
    friend Place between(Place a, Place b, double part) { return {a.x + part * (b.x - a.x), a.y + part * (b.y - a.y)}; }
};

struct Box {
    Range x, y;
    Place start, end, lastCubic, lastQuadratic; // of the subpath, the path so far and its last curves
    bool hasArcs = false;

    void add(Xml::PathDataCommand const& command);
    void addCurve(Place first, Place second, Place to) {
        x.addCurve(end.x, first.x, second.x, to.x);
        y.addCurve(end.y, first.y, second.y, to.y);
    }
};

void Box::add(Xml::PathDataCommand const& command) {
    using namespace Xml::PathCommandKinds;
    Place const origin = command.relative ? end : Place{};
    Place const first = origin + Place{command.x1.pxSize(), command.y1.pxSize()};
    Place const second = origin + Place{command.x2.pxSize(), command.y2.pxSize()};
    Place to = origin + Place{command.x.pxSize(), command.y.pxSize()};
    Place cubic = to, quadratic = to; // what a smooth curve that follows mirrors
    switch (static_cast<Xml::PathCommandKind>(command.kind)) {
    case MoveTo: start = to; [[fallthrough]];
    case LineTo: break;
    case ClosePath: cubic = quadratic = to = start; break;
    case HorizontalLineTo: cubic.y = quadratic.y = to.y = end.y; break;
    case VerticalLineTo: cubic.x = quadratic.x = to.x = end.x; break;
    case CurveTo: addCurve(first, cubic = second, to); break;
    case SmoothCurveTo: addCurve(between(lastCubic, end, 2), cubic = second, to); break;
    case QuadraticCurveTo: quadratic = first; break;
    case SmoothQuadraticCurveTo: quadratic = between(lastQuadratic, end, 2); break;
    case ArcTo: hasArcs = true; break;
    }
    // A quadratic curve is a cubic one with both control points at two thirds of the way to its own.
    addCurve(between(end, quadratic, 2.0 / 3), between(to, quadratic, 2.0 / 3), to);
    end = to;
    lastCubic = cubic;
    lastQuadratic = quadratic;
}

} // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        Xml::TXmlAttribute<Core::Vector<Xml::PathDataCommand>> path;
        path.parseValue(Core::String::fromUtf8(argv[i]));
        Box box;
        for (Xml::PathDataCommand const& command : *path) box.add(command);
        std::cout << argv[i] << ": ";
        if (box.hasArcs)
            std::cout << "has arcs, which this example does not measure\n";
        else
            std::cout << box.x.least << " " << box.y.least << " to " << box.x.most << " " << box.y.most << "\n";
    }
}
