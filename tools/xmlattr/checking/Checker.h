// Looks every element and attribute of a document up in the catalogue, and has their texts judged.
#pragma once

#include "checking/FilterResults.h"
#include "checking/Finding.h"
#include "checking/References.h"
#include "checking/Stylesheet.h"
#include "checking/VerdictCache.h"
#include "xml/XmlReader.h"
#include "xmlattr/catalogue/Names.h"
#include "xmlattr/catalogue/legality/Animation.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace Command {

// Each attribute, each declaration of a style attribute and each literal value of an xsl:attribute is counted in one
// class: a verdict, or a reason why it has none.
struct Counts {
    std::uint64_t files = 0, failedFiles = 0;
    std::uint64_t attributes = 0, declarations = 0;
    std::uint64_t read = 0, passedOver = 0, freeText = 0, misread = 0, lenient = 0, refused = 0;
    // Not covered, by reason.
    std::uint64_t foreign = 0, templates = 0, tooLong = 0, unread = 0, unknown = 0;
    // Findings.
    std::uint64_t errors = 0, warnings = 0, notes = 0;
    // What would be findings, had the user not left it out or recorded it in a baseline.
    std::uint64_t ignored = 0, known = 0;

    std::uint64_t notCovered() const { return foreign + templates + tooLong + unread + unknown; }
    std::uint64_t findings() const { return errors + warnings + notes; }
    std::uint64_t& of(Severity severity);
    // Findings that were counted and are to be none; gives their number.
    std::uint64_t leaveOut(Counts const& others);
    Counts& operator+=(Counts const& other);
};

// Why an attribute is not covered.
enum class Uncovered : std::uint8_t { Foreign, Template, TooLong, Unread, Unknown };

class Checker final : public XmlHandler {
public:
    using Report = std::function<void(Finding const& finding)>;

    struct Options {
        // Findings are counted on when so many of them have been reported.
        std::uint64_t maxFindings = UINT64_MAX;
        // Also reports attributes on elements that do not have them.
        bool isStrict = false;
        // Also reports what is otherwise counted alone.
        bool showsPassedOver = false, showsNotCovered = false, showsUnknown = false; // the last is a part of the second
    };

    // Checkers that are at work one after the other may share what they know of texts.
    Checker(Counts& counts, Report report, Options const& options,
            std::shared_ptr<VerdictCache> cache = std::make_shared<VerdictCache>())
        : counts(counts), report(std::move(report)), options(options), cache(std::move(cache)) {}
    Checker(Counts& counts, Report report) : Checker(counts, std::move(report), Options()) {}

    void startElement(XmlElement const& element, Tag& tag) override;
    bool wantsText(XmlElement const& element) override;
    void text(XmlText const& text) override;
    void missingContent() override { references.missingContent(); }
    // Reports what only the end of the document tells. To be called when it has been read to its end.
    void finish();

private:
    struct Occurrence;

    void checkMade(MadeElement const& made, XmlElement const& element, Tag& tag);
    void findUnknown(Xml::NameFact const& fact, Xml::Vocabulary vocabulary, std::string const& element, Place place,
                     Excerpt source);
    // What is wrong with a namespace of another vocabulary, asked for the first time; else nothing.
    std::string problemOf(std::string_view space);
    void check(Occurrence const& occurrence);
    void checkName(Occurrence const& occurrence);
    void findMisplaced(Occurrence const& occurrence);
    void findPrefixed(Occurrence const& occurrence, std::string problem);
    void checkValue(Occurrence const& occurrence, Xml::CatalogueEntry const& entry);
    void checkAnimated(Occurrence const& occurrence, Xml::AnimatedValue const& animated);
    // Whether it is a fault of a text that is known.
    bool count(Occurrence const& occurrence, Xml::Verdict verdict);
    // Of the text in `utf16`, which was judged by the row.
    void find(Occurrence const& occurrence, Xml::CatalogueEntry const& entry, Xml::Judgement const& judgement);
    void checkStyle(Occurrence const& occurrence);
    // Of what is no declaration.
    void findFault(Occurrence const& piece, std::string_view fault);
    void find(Occurrence const& occurrence, Finding finding);
    void find(ReferenceFault const& fault);
    void showPassedOver(Occurrence const& occurrence);
    void showNotCovered(Occurrence const& occurrence, Uncovered why);
    // Counts a finding; whether it is to be reported.
    bool isReported(Fault fault);

    Counts& counts;
    Report report;
    Options options;
    std::shared_ptr<VerdictCache> cache;
    References references;
    FilterResults filterResults;
    Stylesheet stylesheet;
    std::optional<Xml::Animation> animation; // by the element at hand
    std::u16string utf16;                    // of the attribute at hand, kept for its memory
    std::string style;                       // the style attribute at hand, likewise
    std::string prefixed;
    std::set<std::string, std::less<>> foreignSpaces; // the first that the document has
    bool isPlainSvg = false;                          // an SVG document that declares no namespace
};

} // namespace Command
