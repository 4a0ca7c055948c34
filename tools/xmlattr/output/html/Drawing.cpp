#include "output/html/Drawing.h"

#include "output/html/Markup.h"
#include "text/Text.h"
#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/legality/ValueOfRow.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/svg/PathData.h"
#include "xmlattr/svg/Point.h"
#include "xmlattr/svg/Transform.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>

namespace Command {

namespace {

constexpr std::size_t mostDrawn = 8 << 10; // bytes of a text

struct Spot {
    double x = 0, y = 0;
};

// Grows over the points that it is told of.
struct Box {
    double left = std::numeric_limits<double>::infinity(), top = left, right = -left, bottom = -left;

    void add(Spot at) {
        left = std::min(left, at.x);
        right = std::max(right, at.x);
        top = std::min(top, at.y);
        bottom = std::max(bottom, at.y);
    }
    void add(Box const& other) {
        add(Spot{other.left, other.top});
        add(Spot{other.right, other.bottom});
    }
    // Whatever is so far out that the rest would be tiny is left out of the picture.
    void addNear(Box const& other) {
        double const reach = std::max(right - left, bottom - top) * 0.6;
        add(Box{std::max(other.left, left - reach), std::max(other.top, top - reach),
                std::min(other.right, right + reach), std::min(other.bottom, bottom + reach)});
    }
    // What can be drawn: neither empty nor out of all proportion.
    bool isSound() const {
        constexpr double most = 1e7;
        return left <= right && std::max({-left, -top, right, bottom}) < most;
    }
};

// Lines to be drawn in a frame.
struct Shape {
    std::string path;
    std::string reference{}; // what is there before, of a transform
    Box box{};
};

class PathOutline {
public:
    // A command as it is, so that the browser resolves it; its points count for the frame.
    void add(Xml::PathDataCommand const& command) {
        using enum Xml::PathCommandKind;
        constexpr std::string_view letters = "MZLHVCSQTA"; // by kind
        auto const index = static_cast<std::size_t>(command.kind - MoveTo);
        auto const lower = static_cast<char>(command.relative && command.kind != ClosePath ? 'a' - 'A' : 0);
        shape.path += static_cast<char>(letters[index] + lower);
        origin = command.relative ? at : Spot();
        Spot const to{command.x.pxSize(), command.y.pxSize()};
        switch (static_cast<Xml::PathCommandKind>(command.kind)) {
        case ClosePath: at = start; return;
        case HorizontalLineTo: write(to.x); return moveTo({origin.x + to.x, at.y});
        case VerticalLineTo: write(to.y); return moveTo({at.x, origin.y + to.y});
        case CurveTo:
            control({command.x1.pxSize(), command.y1.pxSize()});
            control({command.x2.pxSize(), command.y2.pxSize()});
            break;
        case SmoothCurveTo: control({command.x2.pxSize(), command.y2.pxSize()}); break;
        case QuadraticCurveTo: control({command.x1.pxSize(), command.y1.pxSize()}); break;
        case ArcTo: arc(command, {origin.x + to.x, origin.y + to.y}); break;
        case MoveTo:
        case LineTo:
        case SmoothQuadraticCurveTo: break;
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
        shape.box.add(Spot{origin.x + point.x, origin.y + point.y});
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

    Spot at, start, origin;
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

std::optional<Shape> shapeOf(Xml::AnyAttribute const& value) {
    auto const as = [&]<class T>(std::type_identity<T>) { return dynamic_cast<Xml::TXmlAttribute<T> const*>(&*value); };
    std::optional<Shape> shape;
    if (auto const* path = as(std::type_identity<Core::Vector<Xml::PathDataCommand>>()))
        shape = shapeOf(path->getValue());
    if (auto const* points = as(std::type_identity<Core::Vector<Xml::Point>>())) shape = shapeOf(points->getValue());
    if (auto const* list = as(std::type_identity<Core::Vector<Xml::Transform>>())) shape = shapeOf(list->getValue());
    if (shape && !shape->box.isSound()) shape.reset();
    return shape;
}

// With some room around.
std::string frame(Box const& box) {
    double const side = std::max({box.right - box.left, box.bottom - box.top, 1e-3});
    double const margin = side * 0.06;
    return number(box.left - margin) + " " + number(box.top - margin) + " " +
           number(box.right - box.left + 2 * margin) + " " + number(box.bottom - box.top + 2 * margin);
}

std::string drawn(Shape const& shape, Box const& box, std::string_view label) {
    std::string svg = "<svg class='shape' role='img' viewBox='" + frame(box) + "'><title>";
    svg.append(label).append("</title>");
    if (!shape.reference.empty()) svg += "<path class='was' d='" + shape.reference + "'/>";
    return svg + "<path d='" + shape.path + "'/></svg>";
}

std::string rounded(double value, std::u16string_view unit) {
    return Core::Format::toMeasure(value, unit).toUtf8();
}

std::string hexColor(std::uint32_t rgb) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) text += digits[rgb >> shift & 0xF];
    return text;
}

std::string swatch(std::uint32_t rgb) {
    return "<svg class='swatch' aria-hidden='true'><rect fill='" + hexColor(rgb) + "'/></svg>";
}

// A bar that is as long as the length, at the size of the page; one that goes on ends in a fade.
std::string ruler(double pixels) {
    constexpr double most = 320;
    double const length = std::abs(pixels);
    return "<svg class='ruler" +
           std::string(length > most ? " long"
                       : pixels < 0  ? " negative"
                                     : "") +
           "' width='" + number(std::clamp(length, 1.0, most)) + "' aria-hidden='true'><rect/></svg>";
}

// A bar of what the whole track is one of.
std::string share(double fraction, std::string_view kind) {
    return "<svg class='bar " + std::string(kind) +
           "' viewBox='0 0 100 8' preserveAspectRatio='none' aria-hidden='true'><rect width='" +
           number(std::clamp(std::abs(fraction), 0.0, 1.0) * 100) + "' height='8'/></svg>";
}

// The one that the text begins with.
double numberOf(std::u16string_view text) {
    return Core::Format::parseFloat(text);
}

// Of four numbers with blanks between them.
std::string drawInks(std::u16string_view components) {
    std::string out;
    for (std::string_view const ink : {"cyan", "magenta", "yellow", "black"}) {
        double const value = numberOf(components);
        components.remove_prefix(std::min(components.find(u' '), components.size() - 1) + 1);
        out.append("<span class='ink'>").append(share(value, ink)).append(ink).append(" ");
        out.append(rounded(value * 100, u"%")).append("</span>");
    }
    return out;
}

std::string drawParts(Xml::Parts const& parts) {
    constexpr std::size_t most = 16;
    std::string out;
    if (parts.rgb) out += swatch(*parts.rgb) + "<code>" + hexColor(*parts.rgb) + "</code>";
    std::size_t count = 0;
    for (Xml::Part const& part : parts.list) {
        if (++count > most) break;
        std::string const value = toUtf8(part.value);
        double const size = numberOf(part.value);
        if (part.name == u"pixels") out += "<span>" + ruler(size) + rounded(size, u" px") + "</span>";
        if (part.name == u"fraction")
            out +=
                "<span>" + share(size, size < 0 || size > 1 ? "warning" : "") + rounded(size * 100, u"%") + "</span>";
        if (part.name == u"cmyk") out += drawInks(part.value);
        if (part.name == u"name") out += "<span>" + escaped(value) + "</span>";
        if (part.name == u"tint")
            out += "<span class='ink'>" + share(size, "black") + "tint " + rounded(size * 100, u"%") + "</span>";
        if (part.name == u"profile") out += "<span>profile " + escaped(value) + "</span>";
        if (part.name == u"component") out += "<code>" + value + "</code>";
    }
    return out;
}

// What the value holds: as it prints, or its size.
std::string inWords(Xml::AnyAttribute const& value) {
    std::string printed = value.getValueAsString().toUtf8();
    if (!printed.empty()) return printed;
    for (Xml::Part const& part : value.parts().list)
        if (part.name == u"size") return toUtf8(part.value);
    return {};
}

// The colour that a text means by the recommendation.
std::optional<std::uint32_t> meantColor(Finding const& finding) {
    Xml::Meaning meaning;
    std::u16string const text = toUtf16(finding.text);
    Xml::Dialect const dialect = Xml::dialectOf(*finding.entry, finding.notation);
    if (!readMeaning(meaning, finding.entry->grammar, dialect, text)) return std::nullopt;
    for (Xml::Item const& item : meaning.values())
        if (item.kind == Xml::ItemKind::Color) return item.rgb;
    return std::nullopt;
}

// A way to read the text, before it is drawn.
struct Candidate {
    std::string_view caption;
    std::string text;
    std::optional<Xml::AnyAttribute> value{};
};

constexpr std::string_view meansCaption = "By the recommendation", heldCaption = "As the formatter reads it",
                           perhapsCaption = "Perhaps meant";

} // namespace

std::vector<Reading> readingsOf(Finding const& finding) {
    bool const isMisread = finding.fault == Fault::Misread;
    Xml::AttributeType const* const type = finding.entry ? finding.entry->type() : nullptr;
    auto const valueOf = [&](std::string const& text) {
        std::optional<Xml::AnyAttribute> value;
        if (!type || text.size() > mostDrawn) return value;
        value.emplace(*type);
        if (!value->parseValue(Core::String::fromUtf8(text))) value.reset();
        return value;
    };

    std::vector<Candidate> candidates;
    if (isMisread && finding.isExact) candidates.push_back({meansCaption, {}, valueOf(finding.replacement)});
    if (finding.fault == Fault::Lenient || finding.fault == Fault::Negative || isMisread)
        candidates.push_back({heldCaption, finding.held, valueOf(finding.text)});
    if (!isMisread && finding.entry && !finding.replacement.empty())
        candidates.push_back({perhapsCaption, {}, valueOf(finding.replacement)});

    Box box;
    std::vector<std::optional<Shape>> shapes;
    for (Candidate const& candidate : candidates) {
        shapes.push_back(candidate.value ? shapeOf(*candidate.value) : std::nullopt);
        if (!shapes.back()) continue;
        // The first is what was meant, where that is known.
        if (box.isSound() && isMisread)
            box.addNear(shapes.back()->box);
        else
            box.add(shapes.back()->box);
    }

    std::vector<Reading> readings;
    if (isMisread && !finding.isExact && type) {
        if (auto const rgb = meantColor(finding))
            readings.push_back({meansCaption, {}, swatch(*rgb) + "<code>" + hexColor(*rgb) + "</code>"});
    }
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        Candidate& candidate = candidates[i];
        Reading reading{candidate.caption, {}, {}, shapes[i].has_value()};
        if (shapes[i]) {
            reading.picture = drawn(*shapes[i], box, candidate.caption);
        } else if (candidate.value && !candidate.value->type().readsList()) {
            reading.text = inWords(*candidate.value);
            reading.picture = drawParts(candidate.value->parts());
        }
        if (reading.text.empty() && reading.picture.empty()) reading.text = std::move(candidate.text);
        // What may be written is in the message already; it is drawn where it looks otherwise.
        bool const isGuess = candidate.caption == perhapsCaption;
        bool const isNew =
            isGuess ? !reading.picture.empty() && (readings.empty() || reading.picture != readings[0].picture)
                    : !reading.text.empty() || !reading.picture.empty();
        if (isNew) readings.push_back(std::move(reading));
    }
    return readings;
}

} // namespace Command
