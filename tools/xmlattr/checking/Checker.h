// Looks every attribute of a document up in the catalogue, and has its text judged.
#pragma once

#include "checking/Hints.h"
#include "checking/VerdictCache.h"
#include "xml/XmlReader.h"
#include "xmlattr/catalogue/legality/Judge.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Command {

// A text that the value type of its attribute refuses.
struct Finding {
    Place place;
    std::string element;   // as the document names it
    std::string attribute; // the same; in a style attribute the property
    std::string text;
    std::string part; // of a shorthand: what is wrong in the text
    std::vector<std::string> types;
    std::string problem; // what is wrong when no type says it
    Hints hints;

    // In one line, without the place.
    std::string message() const;
};

// Each attribute, and each declaration of a style attribute, is counted in one class.
struct Counts {
    std::uint64_t files = 0, failedFiles = 0;
    std::uint64_t attributes = 0, declarations = 0;
    std::uint64_t checked = 0, passedOver = 0, refused = 0, identifiers = 0, texts = 0;
    // Not covered, by reason.
    std::uint64_t untyped = 0, foreign = 0, tooLong = 0, unread = 0, unknown = 0;

    std::uint64_t notCovered() const { return untyped + foreign + tooLong + unread + unknown; }
};

class Checker final : public XmlHandler {
public:
    using Report = std::function<void(Finding const& finding)>;

    // Refusals are counted on when `maxFindings` of them have been reported.
    Checker(Counts& counts, Report report, std::uint64_t maxFindings = UINT64_MAX)
        : counts(counts), report(std::move(report)), maxFindings(maxFindings) {}

    void startElement(XmlElement const& element, Tag& tag) override;

private:
    struct Occurrence;

    void check(Occurrence const& occurrence);
    void checkValue(Occurrence const& occurrence, Xml::CatalogueEntry const& entry);
    void checkStyle(Occurrence const& occurrence);
    void refuse(Occurrence const& occurrence, Finding finding);

    Counts& counts;
    Report report;
    std::uint64_t maxFindings;
    VerdictCache cache;
    std::u16string text; // of the attribute at hand, kept for its memory
    std::string style;   // the style attribute at hand, likewise
    std::string prefixed;
    bool isPlainSvg = false; // an SVG document that declares no namespace
};

} // namespace Command
