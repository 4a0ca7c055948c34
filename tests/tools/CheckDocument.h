// Checks a document that a test writes.
#pragma once

#include "checking/Checker.h"
#include "xml/XmlReader.h"

#include <string>
#include <string_view>

namespace Command {

struct Outcome {
    std::string failure; // its kind and message; empty when the document was read to its end
    Counts counts;
    Place last;             // of the findings
    std::string attributes; // that were refused, each followed by a blank
    std::string messages;   // each with its column before and a line end after it
    std::string excerpts;   // what the document has of the findings, each followed by a bar
};

inline Outcome checkDocument(std::string_view document) {
    Outcome outcome;
    Checker checker(outcome.counts, [&](Finding const& finding) {
        outcome.last = finding.place;
        outcome.attributes += finding.attribute + " ";
        outcome.messages += std::to_string(finding.place.column) + " " + finding.message() + "\n";
        outcome.excerpts += finding.source.part + "|";
    });
    MemorySource source(document);
    if (auto const failure = readXml(source, checker))
        outcome.failure = std::string(failure->id) + ": " + failure->message;
    return outcome;
}

} // namespace Command
