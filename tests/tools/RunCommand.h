// Runs the command as its users do, on files that a test writes.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace Command {

inline std::string const scratch =
    (std::filesystem::path(testing::TempDir()) / ("xmlattr" + std::to_string(getpid()))).string();

// Nothing stays in the folder for temporary files.
struct Cleaning : testing::Environment {
    void TearDown() override { std::filesystem::remove_all(scratch); }
};

inline testing::Environment const* const cleaning = testing::AddGlobalTestEnvironment(new Cleaning);

struct Result {
    std::string output, errors;
    int code;
};

inline std::string contentOf(std::string const& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline std::string write(std::string const& name, std::string const& content) {
    std::string path = scratch + "/" + name;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

inline Result run(std::string const& arguments) {
    std::string const errors = write("errors", "");
    std::FILE* const pipe = popen((std::string(XMLATTR_COMMAND " ") + arguments + " 2>" + errors).c_str(), "r");
    Result result{};
    std::array<char, 4096> buffer;
    while (std::size_t const count = std::fread(buffer.data(), 1, buffer.size(), pipe))
        result.output.append(buffer.data(), count);
    int const status = pclose(pipe);
    result.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.errors = contentOf(errors);
    return result;
}

} // namespace Command
