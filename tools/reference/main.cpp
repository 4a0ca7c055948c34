// Writes the pages of the reference, or says where they are not what the tables and types are now.
//
//   xmlattr_reference [--check] SOURCE_FOLDER
#include "tools/reference/pages/Pages.h"
#include "tools/reference/text/Changes.h"

#include "xmlattr/core/Log.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>

namespace {

namespace fs = std::filesystem;

std::string contentOf(fs::path const& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// Files that no page has.
std::vector<fs::path> surplusOf(fs::path const& folder, std::vector<Reference::Page> const& pages) {
    std::set<std::string> wanted;
    for (Reference::Page const& page : pages) wanted.insert(page.file());
    std::vector<fs::path> surplus;
    for (fs::directory_entry const& entry : fs::directory_iterator(folder))
        if (!wanted.contains(entry.path().filename().string())) surplus.push_back(entry.path());
    return surplus;
}

int check(fs::path const& folder, std::vector<Reference::Page> const& pages) {
    bool isStale = false;
    for (Reference::Page const& page : pages) {
        std::string const changes = Reference::changesBetween(contentOf(folder / page.file()), page.text());
        if (!changes.empty()) std::cout << "docs/reference/" << page.file() << "\n" << changes << "\n";
        isStale |= !changes.empty();
    }
    for (fs::path const& file : surplusOf(folder, pages)) {
        std::cout << "docs/reference/" << file.filename().string() << " is no page of the reference\n";
        isStale = true;
    }
    if (isStale)
        std::cout << "The library (+) is no longer what the pages say (-). Where the change is wanted, `./dev docs` "
                     "writes them anew.\n";
    return isStale ? 1 : 0;
}

int write(fs::path const& folder, std::vector<Reference::Page> const& pages) {
    fs::create_directories(folder);
    for (fs::path const& file : surplusOf(folder, pages)) fs::remove(file);
    bool isWritten = true;
    for (Reference::Page const& page : pages) {
        std::ofstream out(folder / page.file(), std::ios::binary);
        isWritten &= static_cast<bool>(out << page.text() << std::flush);
    }
    if (!isWritten) std::cerr << "xmlattr_reference: cannot write to " << folder.string() << "\n";
    return isWritten ? 0 : 2;
}

} // namespace

int main(int argc, char** argv) {
    bool const isCheck = argc == 3 && std::string_view(argv[1]) == "--check";
    if (argc != 2 && !isCheck) {
        std::cerr << "Usage: xmlattr_reference [--check] SOURCE_FOLDER\n";
        return 2;
    }
    Core::Log::setHandler([](Core::String const&) {}); // of colours that are tried and refused
    fs::path const sources = argv[argc - 1];
    try {
        auto const pages = Reference::allPages(Reference::SourceComments(sources));
        return (isCheck ? check : write)(sources / "docs/reference", pages);
    } catch (std::exception const& problem) {
        std::cerr << "xmlattr_reference: " << problem.what() << "\n";
        return 2;
    }
}
