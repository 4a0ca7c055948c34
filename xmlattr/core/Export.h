// XMLATTR_API marks what the shared library exports; everything else is hidden.
#pragma once

#if !defined(_WIN32)
#define XMLATTR_API __attribute__((visibility("default")))
#elif defined(XMLATTR_BUILDING_SHARED)
#define XMLATTR_API __declspec(dllexport)
#else
#define XMLATTR_API // a program needs no import mark: the linker resolves functions and constants by name
#endif
