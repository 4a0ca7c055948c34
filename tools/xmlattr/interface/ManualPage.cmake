# Puts the commands and options into the manual page: cmake -DCOMMAND= -DVERSION= -DMANUAL= -DOUT= -P ManualPage.cmake
execute_process(COMMAND ${COMMAND} interface manual OUTPUT_VARIABLE COMMANDS OUTPUT_STRIP_TRAILING_WHITESPACE
  COMMAND_ERROR_IS_FATAL ANY)
# Each command with its arguments.
string(REGEX MATCHALL "\\.Nm\n(\\.(Cm|Op|Ar) [^\n]*\n)+" SYNOPSIS "${COMMANDS}")
string(REPLACE ";" "" SYNOPSIS "${SYNOPSIS}")
string(STRIP "${SYNOPSIS}" SYNOPSIS)
configure_file(${MANUAL} ${OUT} @ONLY)
