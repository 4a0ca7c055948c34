#include "cli/Files.h"

#include "bytes/TextFile.h"
#include "text/Path.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <unordered_set>

namespace Command {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view documentExtensions[] = {".fo", ".svg", ".svgz", ".xml", ".xsl", ".xslt"};

// The units of a name are compared as they are: it need not be well-formed.
bool hasExtensionOfDocument(fs::path const& path) {
    fs::path const extension = path.extension();
    auto const lower = [](auto unit) { return Core::toLower(static_cast<char16_t>(unit)); };
    return std::ranges::any_of(documentExtensions, [&](std::string_view known) {
        return std::ranges::equal(extension.native(), known, {}, lower);
    });
}

// Adds files in the order of their paths.
void gatherDirectory(fs::path const& directory, FileList& list) {
    std::vector<fs::directory_entry> found;
    std::error_code error;
    fs::directory_iterator iterator(directory, error);
    for (; !error && iterator != fs::directory_iterator(); iterator.increment(error)) found.push_back(*iterator);
    if (error)
        list.problems.push_back(
            {directory.string(), {"unreadable", "cannot be listed: " + error.message(), std::nullopt}});
    // By characters and not part by part, since they differ in the last alone.
    std::ranges::sort(
        found, {}, [](fs::directory_entry const& entry) -> auto const& { return entry.path().native(); });
    for (fs::directory_entry const& entry : found) {
        std::error_code ignored; // of a dangling link, say: then it is no document
        if (!entry.is_symlink(ignored) && entry.is_directory(ignored))
            gatherDirectory(entry.path(), list);
        else if (hasExtensionOfDocument(entry.path()) && entry.is_regular_file(ignored))
            list.files.push_back(entry.path().string());
    }
}

// The same for all names of a file that differ in how they are written. To take a path apart takes longer than to read
// a small document, and nearly none has anything to leave out.
std::string normalName(std::string const& file) {
    bool const isNormal = fs::path::preferred_separator == '/' && !file.starts_with('.') &&
                          file.find("//") == std::string::npos && file.find("/.") == std::string::npos;
    return isNormal ? file : pathOf(file).lexically_normal().string();
}

} // namespace

FileList gatherFiles(std::vector<std::string> const& paths) {
    FileList list;
    for (std::string const& path : paths) {
        std::error_code ignored;
        if (path == "-" || !fs::is_directory(pathOf(path), ignored)) {
            list.files.push_back(path);
            continue;
        }
        std::size_t const files = list.files.size(), problems = list.problems.size();
        gatherDirectory(pathOf(path), list);
        if (list.files.size() == files && list.problems.size() == problems)
            list.problems.push_back(
                {path,
                 {"no-document", "no .fo, .svg, .svgz, .xml, .xsl or .xslt file in this directory", std::nullopt}});
    }
    std::unordered_set<std::string> known;
    std::erase_if(list.files, [&](std::string const& file) { return !known.insert(normalName(file)).second; });
    return list;
}

bool isDocument(std::string const& file, FileList const& list) {
    std::error_code unknown;
    fs::path const path = pathOf(file);
    if (!fs::is_regular_file(path, unknown)) return false;
    return hasExtensionOfDocument(path) || std::ranges::any_of(list.files, [&](std::string const& listed) {
               return fs::equivalent(path, pathOf(listed), unknown);
           });
}

bool mayBlock(std::string const& file) {
    std::error_code unknown;
    return file == "-" || fs::is_other(pathOf(file), unknown);
}

bool readPaths(std::string const& file, std::vector<std::string>& paths, std::string& problem) {
    std::ifstream opened;
    if (auto const failure = file == "-" ? std::nullopt : openText(file, opened)) {
        problem = file + ": " + *failure;
        return false;
    }
    std::istream& lines = file == "-" ? std::cin : opened;
    std::size_t const before = paths.size();
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r')) line.pop_back();
        if (!line.empty()) paths.push_back(line);
    }
    if (paths.size() > before) return true;
    problem = file + ": no path in this file";
    return false;
}

} // namespace Command
