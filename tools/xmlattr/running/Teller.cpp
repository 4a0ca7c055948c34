#include "running/Teller.h"

#include "text/Text.h"

#include <utility>

namespace Command {

void Teller::finding(std::size_t file, Finding const& finding) {
    bool const isKnown = baselines.known && baselines.known->take(names[file], finding);
    if (baselines.recorded) baselines.recorded->add(names[file], finding);
    if (baselines.recorded || isKnown) {
        ++(isKnown ? known : recorded).of(kindOf(finding.fault).severity);
        return;
    }
    if (options.isGrouped) return groups.add(names[file], finding);
    if (shown == options.maxFindings) return;
    ++shown;
    progress.clear();
    reporter.finding(names[file], finding);
}

void Teller::ended(std::size_t file, FileEnd const& end) {
    Counts ofFile = end.counts;
    ofFile.known = ofFile.leaveOut(known) + ofFile.leaveOut(recorded);
    allRecorded += std::exchange(recorded, {});
    known = {};
    counts += ofFile;
    hasFaults = hasFaults || ofFile.errors > 0 || (end.isStrict && ofFile.warnings > 0);
    done = file + 1;
    if (!end.failure) {
        if (baselines.known) baselines.known->finish(names[file]);
        return;
    }
    progress.clear();
    reporter.failure(names[file], *end.failure);
}

std::uint64_t Teller::wanted() const {
    bool const looksAtEach = options.isGrouped || baselines.known || baselines.recorded;
    return looksAtEach ? UINT64_MAX : options.maxFindings - shown;
}

int Teller::finish(bool isRecorded) {
    progress.clear();
    if (!isRecorded) {
        counts += allRecorded;
        counts.known -= allRecorded.findings();
    }
    std::vector<FindingGroup const*> const sorted = groups.byCount();
    for (FindingGroup const* const group : sorted) {
        if (shown == options.maxFindings) break;
        ++shown;
        reporter.group(*group);
    }
    reporter.finish(counts, shown);
    if (!options.isQuiet && !sorted.empty() && sorted.front()->count > 1) {
        FindingGroup const& first = *sorted.front();
        printError(quantity(sorted.size(), "distinct finding") + "; the most frequent " +
                   quantity(first.count, "time") + ": " + first.finding.message() + " [" +
                   std::string(kindOf(first.finding.fault).id) + "]\n");
    }
    return counts.failedFiles > 0 ? 2 : hasFaults ? 1 : 0;
}

} // namespace Command
