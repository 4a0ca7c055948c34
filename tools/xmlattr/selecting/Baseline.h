// The findings that a user has accepted, in a file.
#pragma once

#include "checking/Finding.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace Command {

// A finding is known by its id, element, attribute and text, and by how often its document has it: it stays known when
// lines move. Documents are named from the folder of the baseline on.
class Baseline {
public:
    // The file is neither read nor written yet.
    explicit Baseline(std::string file);

    std::string const& path() const { return file; }

    // Gives what is wrong with the file; then the baseline is empty.
    [[nodiscard]] std::optional<std::string> read();
    // The file keeps what it holds until the new one is whole. Throws std::runtime_error when it cannot be written.
    void write() const;

    void add(std::string const& document, Finding const& finding);
    // Whether the finding is known; one that is there twice is taken twice.
    bool take(std::string const& document, Finding const& finding);
    // Everything in the document that can be taken has been.
    void finish(std::string const& document);
    // A line for each entry that was not taken, or not as often as it is there, of documents that are finished or do
    // not exist any more.
    std::vector<std::string> gone() const;

private:
    using Key = std::tuple<std::string, std::string, std::string, std::string>; // id, element, attribute, text
    struct Document {
        std::map<Key, std::uint64_t> counts;
        bool isFinished = false;
    };

    static Key keyOf(Finding const& finding);
    std::string nameOf(std::string const& document) const;

    std::string file;
    std::map<std::string, Document> documents;
};

} // namespace Command
