#include "output/Report.h"

namespace Command {

std::span<ReportFormat const> reportFormats() {
    static constexpr ReportFormat formats[] = {
        {"text", makeTextReporter},     {"json", makeJsonReporter, true}, {"sarif", makeSarifReporter, true},
        {"github", makeGithubReporter}, {"html", makeHtmlReporter},
    };
    return formats;
}

} // namespace Command
