// How a value is read, for those who would rather see than read: colours, lengths, paths, points and transforms.
#pragma once

#include "checking/Finding.h"

#include <string>
#include <vector>

namespace Command {

// What a text stands for, in one way to read it.
struct Reading {
    std::string_view caption; // who reads it so
    std::string text;         // of the value; may be empty
    std::string picture;      // markup; empty for a value that has none
    bool isShape = false;     // rather than a swatch or a bar in a line of text
};

// How the value of a finding is read, and what may be written instead: side by side, in one scale.
std::vector<Reading> readingsOf(Finding const& finding);

} // namespace Command
