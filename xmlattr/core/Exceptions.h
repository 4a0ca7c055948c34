// What the library throws. Bad attribute text never throws; only program errors do.
#pragma once

#include "xmlattr/core/Export.h"

#include <exception>
#include <string>

namespace Core {

// What the library throws, with a message for developers.
class XMLATTR_API Exception : public std::exception {
public:
    explicit Exception(std::string message);
    Exception(Exception const&) = default;
    Exception& operator=(Exception const&) = default;
    ~Exception() override;
    // The message, in UTF-8.
    char const* what() const noexcept override;

private:
    std::string message;
};

// An enumerator or unit outside its declared values reached a switch.
class XMLATTR_API UnreacheableCodeException : public Exception {
public:
    UnreacheableCodeException(char const* sourceName, int line);
    UnreacheableCodeException(UnreacheableCodeException const&) = default;
    UnreacheableCodeException& operator=(UnreacheableCodeException const&) = default;
    ~UnreacheableCodeException() override;

    char const* getSourceName() const noexcept { return sourceName; }
    int getLine() const noexcept { return line; }

private:
    char const* sourceName; // a literal
    int line;
};

// A null SmartPtr was dereferenced.
class XMLATTR_API NullPointerException : public Exception {
public:
    NullPointerException();
    NullPointerException(NullPointerException const&) = default;
    NullPointerException& operator=(NullPointerException const&) = default;
    ~NullPointerException() override;

    // Throws one, for headers whose users may compile without exceptions.
    [[noreturn]] static void raise();
};

} // namespace Core
