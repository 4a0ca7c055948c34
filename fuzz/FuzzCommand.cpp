// Any bytes as a document for the command: its XML reader, its places and its checks.
#include "FuzzText.h"
#include "checking/Checker.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size == 0) return 0;
    Command::MemorySource source(std::string_view(reinterpret_cast<char const*>(data), size));
    Command::Counts counts;
    std::uint64_t findings = 0;
    Command::Checker checker(counts, [&](Command::Finding const& finding) {
        ++findings;
        require(finding.place.line >= 1 && finding.place.line <= size, "a finding is in no line of the document");
        require(finding.place.column >= 1 && finding.place.column <= size + 1, "a finding is in no column");
        require(finding.message().find('\n') == std::string::npos, "a message has two lines");
    });
    auto const failure = Command::readXml(source, checker);
    if (!failure) checker.finish();
    require(!failure || (!failure->id.empty() && !failure->message.empty()), "a failure says nothing");
    require(findings == counts.findings(), "findings are lost");
    std::uint64_t const classes = counts.read + counts.passedOver + counts.freeText + counts.misread + counts.lenient +
                                  counts.refused + counts.notCovered();
    require(counts.attributes + counts.declarations == classes, "an attribute is in no class, or in two");
    return 0;
}
