#include "checking/Finding.h"
#include "cli/Commands.h"

#include <iterator>
#include <string_view>

namespace Command {

namespace {

struct Explanation {
    std::string_view id, text;
};

// Of what could not be read, written or done.
constexpr Explanation explanations[] = {
    {"malformed", "The file is no well-formed XML at the place that the message names. What precedes it was\n"
                  "checked; what follows it was not.\n"},
    {"encoding", "The file declares an encoding that is not read, or is not in the one that it declares. UTF-8,\n"
                 "UTF-16, ISO-8859-1, US-ASCII and windows-1252 are always read, others where the iconv of the\n"
                 "machine knows them.\n"},
    {"limit", "The file goes beyond what is read: entities that expand to more than 100 times the file,\n"
              "elements that nest more than 10000 deep, a tag or comment of more than 32 MiB, a compressed file\n"
              "that expands to more than 1 GiB or, beyond 16 MiB, to more than 200 times its size.\n"},
    {"unreadable", "The file or folder does not exist or may not be read, or the file is compressed and the command\n"
                   "was built without zlib.\n"},
    {"unwritable", "The file, or the folder that it is in, may not be written, or the disk is full. The file is as it\n"
                   "was.\n"},
    {"no-document", "Neither the folder nor any folder in it has a file whose name ends as those of documents and\n"
                    "stylesheets do: .fo, .svg, .svgz, .xml, .xsl or .xslt. A file that is named may have any name.\n"},
    {"stopped", "A signal ended the run, such as that of Ctrl-C. Files after those that the message counts were not\n"
                "checked, or not to their end.\n"},
    {"usage", "A filter, a list of files, a configuration or a baseline cannot be used. Nothing was checked.\n"},
    {"unknown-type", "No value type has this name. `xmlattr types` lists them.\n"},
    {"no-match", "No value type, or no attribute of the vocabulary and the type that were asked for, has a name of\n"
                 "which this is a part.\n"},
};

// Of findings, and of what could not be done.
std::vector<Explanation> allExplanations() {
    std::vector<Explanation> all;
    for (FaultKind const& kind : faultKinds()) all.push_back({kind.id, kind.explanation});
    all.insert(all.end(), std::begin(explanations), std::end(explanations));
    return all;
}

} // namespace

std::vector<std::string> explainedIds() {
    std::vector<std::string> ids;
    for (Explanation const& explanation : allExplanations()) ids.emplace_back(explanation.id);
    return ids;
}

int explain(std::string const& id) {
    for (Explanation const& explanation : allExplanations()) {
        if (explanation.id != id) continue;
        print(id + "\n\n" + std::string(explanation.text));
        flushOutput();
        return 0;
    }
    std::string ids;
    for (std::string const& known : explainedIds()) ids += " " + known;
    printError("xmlattr: no message has the id \"" + id + "\"; there are:" + ids + "\n");
    return 2;
}

} // namespace Command
