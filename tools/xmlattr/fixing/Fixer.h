// Checks a document and tells which of its bytes are to be changed, so that its values are read as they are meant.
#pragma once

#include "checking/Checker.h"
#include "fixing/Changes.h"
#include "fixing/Rewriter.h"
#include "xml/XmlReader.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace Command {

struct FixCounts {
    FaultCounts fixed, left;
    std::uint64_t suggested = 0; // of those left: the ones for which there is a guess
};

class Fixer final : public XmlHandler {
public:
    struct Options {
        bool takesSuggestions = false; // also replacements that are but guesses
        bool hasPlaces = true;         // whether the bytes that are read are those of the file
    };

    // Asked of each finding: what is not wanted is neither fixed nor told.
    using Wanted = std::function<bool(Finding const& finding)>;
    // Called for each edit, in the order of the document.
    using Edited = std::function<void(Edit const& edit)>;
    // Called for what stays; `reason` is empty where no replacement is known, or but a guess.
    using Left = std::function<void(Finding const& finding, std::string_view reason)>;

    Fixer(Options const& options, Wanted wanted, Edited edited, Left left);

    void startElement(XmlElement const& element, Tag& tag) override;
    bool wantsText(XmlElement const& element) override { return checker.wantsText(element); }
    void text(XmlText const& text) override;
    void missingContent() override { checker.missingContent(); }
    // To be called when the document has been read to its end.
    void finish() { checker.finish(); }

    FixCounts const& counts() const { return fixCounts; }

private:
    // An attribute of the tag at hand.
    struct Value {
        std::size_t number;
        std::string_view text, reason; // why nothing of it is rewritten; empty where all may be
    };

    void take(Finding const& finding);
    // Makes the edits, or tells why there are none.
    std::string_view fix(Finding const& finding);
    std::string_view fixInTag(Finding const& finding, std::vector<Change> const& changes);
    std::string_view fixInText(Finding const& finding, std::vector<Change> const& changes);
    Value valueOf(std::size_t number) const;

    Options options;
    Wanted wanted;
    Edited edited;
    Left left;
    Counts checkCounts;
    FixCounts fixCounts;
    Checker checker;
    // At hand; null where there is none.
    XmlElement const* element = nullptr;
    Tag* tag = nullptr;
    XmlText const* content = nullptr;
    std::optional<Value> value;
    // Up to which code point of the tag its bytes have been counted.
    std::size_t index = 0;
    std::uint64_t indexBytes = 0;
    std::uint64_t editsEnd = 0; // in the file
};

} // namespace Command
