# Installs a build tree and moves the installation elsewhere, as packages are: nothing in it may name its first place.
#   cmake -DBUILD=FOLDER -DPREFIX=FOLDER -P Install.cmake
file(REMOVE_RECURSE ${PREFIX} ${PREFIX}.first)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}.first
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${PREFIX}.first ${PREFIX})
file(GLOB_RECURSE texts ${PREFIX}/*.cmake ${PREFIX}/*.pc ${PREFIX}/*.h)
foreach(text IN LISTS texts)
  file(READ ${text} content)
  string(FIND "${content}" "${BUILD}" at)
  if(NOT at EQUAL -1)
    message(FATAL_ERROR "${text} names ${BUILD}")
  endif()
endforeach()
