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

std::string drawColor(std::uint32_t rgb) {
    std::string const color = hexColor(rgb);
    return "<svg class='swatch' aria-hidden='true'><rect fill='" + color + "'/></svg><code>" + color + "</code>";
}

// A bar that is as long as the length, at the size of the page; one that goes on ends in a fade.
std::string ruler(double pixels) {
    constexpr double most = 320;
    double const length = std::abs(pixels);
    std::string_view const look = length > most ? "ruler long" : pixels < 0 ? "ruler negative" : "ruler";
    return "<svg class='" + std::string(look) + "' width='" + number(std::clamp(length, 1.0, most)) +
           "' aria-hidden='true'><rect/></svg>";
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
    if (parts.rgb) out += drawColor(*parts.rgb);
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

constexpr std::string_view meansCaption = "By the recommendation", heldCaption = "As the formatter reads it",
                           perhapsCaption = "Perhaps meant";

// A way to read the text, before it is drawn.
struct Candidate {
    std::string_view caption;
    std::string text{}; // where there is no value
    std::optional<Xml::AnyAttribute> value{};
};

std::optional<Xml::AnyAttribute> valueOf(Xml::AttributeType const* type, std::string const& text) {
    std::optional<Xml::AnyAttribute> value;
    if (!type || text.size() > mostDrawn) return value;
    value.emplace(*type);
    if (!value->parseValue(Core::String::fromUtf8(text))) value.reset();
    return value;
}

// Of a part of a shorthand the finding that it would be on the attribute whose value it is, where that is known.
Finding ofLonghand(Finding const& finding) {
    bool const isReplaced = finding.text.substr(finding.offset, finding.length) == finding.part;
    if (finding.part.empty() || (!isReplaced && !finding.replacement.empty())) return finding;
    for (Xml::CatalogueEntry const* const longhand : finding.entry->longhands) {
        auto const value = valueOf(longhand->type(), finding.part);
        if (!value || value->getValueAsString().toUtf8() != finding.held) continue;
        Finding part = finding;
        part.entry = longhand;
        part.text = finding.part;
        std::size_t const after = finding.text.size() - finding.offset - finding.length;
        if (isReplaced)
            part.replacement =
                finding.replacement.substr(finding.offset, finding.replacement.size() - finding.offset - after);
        return part;
    }
    return finding;
}

// What was meant comes first, where it is known: an exact replacement is read as what the text means.
std::vector<Candidate> candidatesOf(Finding const& finding) {
    Xml::AttributeType const* const type = finding.entry->type();
    bool const isHeld = finding.fault == Fault::Misread || finding.fault == Fault::Lenient ||
                        finding.fault == Fault::Negative || !finding.held.empty();
    std::vector<Candidate> candidates;
    if (finding.isExact) candidates.push_back({meansCaption, {}, valueOf(type, finding.replacement)});
    if (isHeld) candidates.push_back({heldCaption, finding.held, valueOf(type, finding.text)});
    if (!finding.isExact && !finding.replacement.empty())
        candidates.push_back({perhapsCaption, {}, valueOf(type, finding.replacement)});
    return candidates;
}

} // namespace

std::vector<Reading> readingsOf(Finding const& whole) {
    if (!whole.entry) return {};
    Finding const finding = whole.entry->longhands.empty() ? whole : ofLonghand(whole);
    std::vector<Candidate> candidates = candidatesOf(finding);
    Box box;
    std::vector<std::optional<Shape>> shapes;
    for (Candidate const& candidate : candidates) {
        shapes.push_back(candidate.value ? shapeOf(*candidate.value) : std::nullopt);
        if (!shapes.back()) continue;
        if (finding.isExact && box.isSound())
            box.addNear(shapes.back()->box);
        else
            box.add(shapes.back()->box);
    }

    std::vector<Reading> readings;
    if (finding.fault == Fault::Misread && !finding.isExact)
        if (auto const rgb = meantColor(finding)) readings.push_back({meansCaption, {}, drawColor(*rgb)});
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
        bool const isSame = !readings.empty() && reading.picture == readings.front().picture;
        if (reading.picture.empty() ? !isGuess && !reading.text.empty() : !isGuess || !isSame)
            readings.push_back(std::move(reading));
    }
    return readings;
}

} // namespace Command
