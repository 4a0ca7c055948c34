# Runs a program and compares what it prints with a file:
#   cmake -DEXPECTED=FILE -P compare.cmake -- PROGRAM ARGUMENT...
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(i RANGE 5 ${last})
  list(APPEND command "${CMAKE_ARGV${i}}")
endforeach()
execute_process(COMMAND ${command} OUTPUT_VARIABLE printed RESULT_VARIABLE code)
file(READ ${EXPECTED} expected)
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "${EXPECTED} has\n${expected}\nbut the program prints\n${printed}")
endif()
# 1 says that something was refused, which an expected text shows.
if(NOT code MATCHES "^[01]$")
  message(FATAL_ERROR "the program ends with ${code}")
endif()
