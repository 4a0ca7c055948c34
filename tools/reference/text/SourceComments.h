// What the headers and sources of the library say of the value types: their comments are prose of the reference too.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Reference {

// Lines without their slashes. An empty line ends a paragraph; one that is indented is an example.
using Comment = std::vector<std::string>;

// Behaviour that looks wrong and is relied on: what follows "Intended:".
struct Oddity {
    std::string file; // within the source folder
    std::string text;
    std::string code; // that it stands after, if any
};

// A heading of the list of value types, and the names below it.
struct Family {
    std::string name;
    std::vector<std::string> types;
};

class SourceComments {
public:
    // Reads the sources in the folder that holds `xmlattr/`. Throws std::runtime_error when there are none.
    explicit SourceComments(std::filesystem::path const& sources);

    std::vector<Family> const& families() const { return allFamilies; }

    // The comments above the type and above its traits; often only one of them is there.
    std::vector<Comment> const& above(std::string_view type) const;
    // Those within the type and its functions, and not in a comment above it. Under the empty name stand those that
    // belong to no type or to several.
    std::vector<Oddity> const& oddities(std::string_view type) const;

private:
    void readFamilies(std::filesystem::path const& list);
    void readSource(std::filesystem::path const& file, std::string const& name);
    std::string typeDeclaredBy(std::string_view line) const;
    std::string typeDefinedBy(std::string_view line) const;

    std::vector<Family> allFamilies;
    std::map<std::string, std::string, std::less<>> typesByWord; // "BorderWidth", "Core::Vector<Point>"
    std::map<std::string, std::vector<Comment>, std::less<>> comments;
    std::map<std::string, std::vector<Oddity>, std::less<>> odd;
};

} // namespace Reference
