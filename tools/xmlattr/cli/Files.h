// Which documents a call of the command reads.
#pragma once

#include "xml/XmlReader.h"

#include <string>
#include <vector>

namespace Command {

// A folder of which not every document is known, or which has none.
struct FolderProblem {
    std::string folder;
    XmlFailure failure;
};

struct FileList {
    std::vector<std::string> files; // "-" is standard input
    std::vector<FolderProblem> problems;
};

// Files as they are; a directory stands for every .fo, .svg, .svgz, .xml, .xsl and .xslt file in it and
// below it, in the order of their names. What is named twice is there once, where it was first.
FileList gatherFiles(std::vector<std::string> const& paths);

// Whether there is a file of this name that is a document: one of the list, or by its extension.
bool isDocument(std::string const& file, FileList const& list);

// Whether reading a file may take as long as somebody else likes: standard input, a pipe or a device.
bool mayBlock(std::string const& file);

// The lines of a file that lists paths, empty ones left out; "-" is standard input. False when it
// cannot be read or lists none; then `problem` says so.
bool readPaths(std::string const& file, std::vector<std::string>& paths, std::string& problem);

} // namespace Command
