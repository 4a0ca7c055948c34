// What a text may have been meant to be that a value type refuses.
#pragma once

#include "xmlattr/catalogue/AttributeType.h"

#include <string>
#include <string_view>

namespace Command {

struct Hints {
    std::string variant; // nearly the same text, which the type accepts; or empty
    std::string nearest; // the word of the type that is one or two letters away; or empty
};

Hints hintsFor(Xml::AttributeType const& type, std::u16string_view text);

} // namespace Command
