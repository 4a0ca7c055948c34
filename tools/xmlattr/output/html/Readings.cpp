#include "output/html/Readings.h"

#include "output/html/Markup.h"
#include "output/html/Shape.h"
#include "text/Text.h"
#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/legality/ValueOfRow.h"
#include "xmlattr/core/Format.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Command {

namespace {

constexpr std::size_t mostDrawn = 8 << 10; // bytes of a text

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
        out.append("<span class='ink'>").append(bar(value, ink)).append(ink).append(" ");
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
            out += "<span>" + bar(size, size < 0 || size > 1 ? "warning" : "") + rounded(size * 100, u"%") + "</span>";
        if (part.name == u"cmyk") out += drawInks(part.value);
        if (part.name == u"name") out += "<span>" + escaped(value) + "</span>";
        if (part.name == u"tint")
            out += "<span class='ink'>" + bar(size, "black") + "tint " + rounded(size * 100, u"%") + "</span>";
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
