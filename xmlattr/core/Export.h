// The check of the language standard, and XMLATTR_API. It marks what the shared library exports: public
// classes, functions, constants and attributes, and each enumeration that is a value type, since a hidden
// enumeration would hide its attribute; nothing else. A static library exports nothing: its users define
// XMLATTR_STATIC, as its packages do for them, which leaves the mark empty.
#pragma once

#if __cplusplus < 202002L
#error "xmlattr needs C++20: compile with -std=c++20 or later"
#include <xmlattr/needs-C++20> // no such file: ends the compilation here, before errors by the hundred
#endif

#if defined(XMLATTR_STATIC)
#define XMLATTR_API
#elif !defined(_WIN32)
#define XMLATTR_API __attribute__((visibility("default")))
#elif defined(XMLATTR_BUILDING_SHARED)
#define XMLATTR_API __declspec(dllexport)
#else
#define XMLATTR_API // MinGW programs need no import mark: the linker finds functions and constants by name
#endif
