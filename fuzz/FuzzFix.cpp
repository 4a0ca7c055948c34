// Any bytes as a document to fix: all but the edits stays, and to fix it again changes nothing.
#include "FuzzText.h"
#include "fixing/Fixer.h"
#include "tools/Versions.h"

namespace {

struct Fixed {
    std::string document;
    Command::FixCounts counts;
};

// What becomes of the document; nothing where it is malformed.
std::optional<Fixed> fix(std::string_view document, bool takesSuggestions) {
    Command::MemorySource checked(document), copied(document);
    Command::Versions versions;
    Command::Rewriter rewriter(copied, versions);
    Command::Fixer fixer(
        {takesSuggestions}, [](Command::Finding const&) { return true; },
        [&](Command::Edit const& edit) { rewriter.apply(edit); }, [](Command::Finding const&, std::string_view) {});
    if (Command::readXml(checked, fixer)) return std::nullopt;
    fixer.finish();
    rewriter.finish();
    require(versions.before == document, "bytes besides the edits are lost");
    require(rewriter.hasEdits() == !fixer.counts().fixed.empty(), "a finding is fixed without an edit");
    return Fixed{versions.after, fixer.counts()};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const document(reinterpret_cast<char const*>(data), size);
    for (bool const takesSuggestions : {false, true}) {
        auto const once = fix(document, takesSuggestions);
        if (!once) return 0;
        auto const twice = fix(once->document, takesSuggestions);
        require(twice.has_value(), "the fixed document is malformed");
        require(twice->document == once->document, "to fix a fixed document changes it");
        require(twice->counts.fixed.empty(), "something was left that can be fixed");
    }
    return 0;
}
