#include "xmlattr/core/Exceptions.h"

#include <utility>

namespace Core {

Exception::Exception(std::string message) : message(std::move(message)) {}
Exception::~Exception() = default;

char const* Exception::what() const noexcept {
    return message.c_str();
}

UnreacheableCodeException::UnreacheableCodeException(char const* sourceName, int line)
    : Exception(std::string("unreachable code: ") + sourceName + ", line " + std::to_string(line)),
      sourceName(sourceName),
      line(line) {}
UnreacheableCodeException::~UnreacheableCodeException() = default;

NullPointerException::NullPointerException() : Exception("null pointer") {}
NullPointerException::~NullPointerException() = default;

void NullPointerException::raise() {
    throw NullPointerException();
}

} // namespace Core
