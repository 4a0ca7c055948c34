#include "cli/Files.h"

#include "xmlattr/core/Text.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace Command {

namespace {

namespace fs = std::filesystem;

constexpr std::u16string_view documentExtensions[] = {u".fo", u".svg", u".svgz", u".xml", u".xsl", u".xslt"};

bool isDocument(fs::path const& path) {
    std::u16string const extension = path.extension().u16string();
    return std::ranges::any_of(documentExtensions,
                               [&](std::u16string_view known) { return Core::equalsNoCase(extension, known); });
}

void gatherDirectory(std::string const& directory, FileList& list) {
    std::error_code error;
    std::size_t const before = list.files.size();
    fs::recursive_directory_iterator iterator(directory, error);
    for (; !error && iterator != fs::recursive_directory_iterator(); iterator.increment(error)) {
        std::error_code ignored; // of a dangling link, say: then it is no document
        if (isDocument(iterator->path()) && iterator->is_regular_file(ignored))
            list.files.push_back(iterator->path().string());
    }
    if (error) list.problems.push_back(directory + ": " + error.message());
    std::sort(list.files.begin() + static_cast<std::ptrdiff_t>(before), list.files.end());
    if (!error && list.files.size() == before)
        list.problems.push_back(directory + ": no .fo, .svg, .svgz, .xml, .xsl or .xslt file in this directory");
}

} // namespace

FileList gatherFiles(std::vector<std::string> const& paths) {
    FileList list;
    for (std::string const& path : paths) {
        std::error_code ignored;
        if (path != "-" && fs::is_directory(path, ignored))
            gatherDirectory(path, list);
        else if (path != "-" || std::ranges::find(list.files, path) == list.files.end())
            list.files.push_back(path);
    }
    return list;
}

bool readPaths(std::string const& file, std::vector<std::string>& paths, std::string& problem) {
    std::ifstream opened;
    if (file != "-") opened.open(file);
    std::istream& lines = file == "-" ? std::cin : opened;
    std::error_code ignored;
    if (!lines || fs::is_directory(file, ignored)) {
        problem = file + ": " + std::strerror(lines ? EISDIR : errno);
        return false;
    }
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
