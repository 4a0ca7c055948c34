// What the file xmlattr.toml says, in which a project keeps the options of its checks.
#pragma once

#include "output/Output.h"
#include "output/Report.h"
#include "selecting/FileSettings.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Command {

// Each option is absent where the command line or the file does not have it.
struct RunSettings {
    std::optional<ReportFormat const*> format;
    std::optional<ColorMode> color;
    std::optional<std::string> baseline; // the path
    std::optional<bool> isGrouped, isQuiet;
    std::optional<std::uint64_t> maxFindings, jobs; // the latter as many as there are cores

    // Takes what is absent from the others.
    void complete(RunSettings const& others);
};

class Configuration {
public:
    // Gives what is wrong with the file, at its place.
    [[nodiscard]] std::optional<std::string> read(std::string const& file);

    // Those for all documents, then of each table [[paths]] that the document belongs to, in their order.
    void addSettings(std::string const& document, std::vector<FileSettings const*>& settings) const;

    RunSettings run;

private:
    struct Paths {
        std::vector<std::string> patterns; // from the folder of the configuration on
        FileSettings settings;
    };
    class Reader;

    std::string folder; // absolute
    FileSettings settings;
    std::vector<Paths> paths;
};

// The configurations of many documents: of each the file xmlattr.toml in its folder, or in the nearest above it.
class Configurations {
public:
    // Takes this file for every document instead.
    [[nodiscard]] std::optional<std::string> use(std::string const& file);
    // The configuration is null where the document has none.
    [[nodiscard]] std::optional<std::string> find(std::string const& document, Configuration const*& configuration);

private:
    std::optional<Configuration> named;
    std::map<std::string, Configuration> files;
    std::map<std::string, Configuration const*, std::less<>> folders;
};

} // namespace Command
