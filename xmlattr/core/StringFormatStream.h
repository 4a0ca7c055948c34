// Fills the numbered placeholders of a format text.
#pragma once

#include "xmlattr/core/String.h"

#include <variant>

namespace Core {

// "{0}" prints argument 0 in its default form (the shortest number that reads back, a decimal
// int, a text as it is); "{0:0.###}" prints a number with at most three decimals, correctly
// rounded, without trailing zeros and never as "-0". Arguments are streamed in the order of their
// numbers. A placeholder without an argument prints nothing; surplus arguments are ignored; a "{"
// that begins no placeholder stands for itself.
class XMLATTR_API StringFormatStream {
public:
    explicit StringFormatStream(String format);

    StringFormatStream& operator<<(String const& argument);
    StringFormatStream& operator<<(int argument);
    StringFormatStream& operator<<(float argument);
    StringFormatStream& operator<<(double argument);

    String getString() const;

    // What a placeholder may be filled with.
    using Argument = std::variant<String, int, float, double>;

private:
    String format;
    Vector<Argument> arguments;
};

} // namespace Core
