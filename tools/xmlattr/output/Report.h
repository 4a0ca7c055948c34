// What `check` says: findings on standard output, failures and the summary on standard error.
#pragma once

#include "checking/Checker.h"
#include "output/Output.h"
#include "xml/XmlReader.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Command {

class Reporter {
public:
    virtual ~Reporter() = default;
    virtual void finding(std::string const& file, Finding const& finding) = 0;
    virtual void failure(std::string const& file, XmlFailure const& failure) = 0;
    // The first `shown` findings have been reported.
    virtual void summary(Counts const& counts, std::uint64_t shown) = 0;
};

// For a person, in a line: a finding, and why a file was not read to its end.
std::string findingLine(std::string const& file, Finding const& finding, bool isColored);
std::string failureLine(std::string const& file, XmlFailure const& failure);

// GCC style: "file:line:column: warning: ... [id]".
std::unique_ptr<Reporter> makeTextReporter(bool isColored);
// An object a line.
std::unique_ptr<Reporter> makeJsonReporter();

} // namespace Command
