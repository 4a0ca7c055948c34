// What comes before everything else: the language standard, and XMLATTR_API, which marks what the
// shared library exports: public classes, functions and constants, and the enumerations among them,
// since a hidden enumeration would hide its attribute. Nothing else of the library is exported. A
// static library exports nothing at all: XMLATTR_STATIC, which the packages of the static library
// define for its users, leaves the mark empty.
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
