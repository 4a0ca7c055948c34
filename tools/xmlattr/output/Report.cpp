#include "output/Report.h"

namespace Command {

std::span<ReportFormat const> reportFormats() {
    static constexpr ReportFormat formats[] = {
        {"text", makeTextReporter},     {"json", makeJsonReporter}, {"sarif", makeSarifReporter},
        {"github", makeGithubReporter}, {"html", makeHtmlReporter},
    };
    return formats;
}

} // namespace Command
