# What every target of the project is compiled with, and nothing that its users inherit.
add_library(xmlattr_options INTERFACE)
target_compile_features(xmlattr_options INTERFACE cxx_std_20)
if(PROJECT_IS_TOP_LEVEL)
  target_compile_options(xmlattr_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wold-style-cast -Wextra-semi
    $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>)
else()
  # The warnings that a parent project asks for, as errors maybe, are about its own sources.
  target_compile_options(xmlattr_options INTERFACE -w)
endif()

# Rounding is exact only where a double is a double: the x87 registers keep more.
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "86")
  target_compile_options(xmlattr_options INTERFACE -msse2 -mfpmath=sse)
endif()
