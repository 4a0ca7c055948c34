# Installs a build tree, removes the installation again, and then installs and moves it, as packages are moved: nothing
# in it may name its first place.
#   cmake -DSOURCE=FOLDER -DBUILD=FOLDER -DPREFIX=FOLDER -P Install.cmake
set(first ${PREFIX}.first)
file(REMOVE_RECURSE ${PREFIX} ${first})
function(install)
  execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${first} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

install()
execute_process(COMMAND ${CMAKE_COMMAND} -DBUILD=${BUILD} -P ${SOURCE}/cmake/Uninstall.cmake
  OUTPUT_QUIET ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE remaining LIST_DIRECTORIES true ${first}/*)
list(FILTER remaining INCLUDE REGEX "xmlattr[^/]*$") # folders of others stay, empty or not
if(remaining)
  message(FATAL_ERROR "the target uninstall leaves ${remaining}")
endif()

install()
file(RENAME ${first} ${PREFIX})
file(GLOB_RECURSE texts ${PREFIX}/*.cmake ${PREFIX}/*.pc ${PREFIX}/*.h)
foreach(text IN LISTS texts)
  file(READ ${text} content)
  foreach(folder ${BUILD} ${first})
    string(FIND "${content}" "${folder}" at)
    if(NOT at EQUAL -1)
      message(FATAL_ERROR "${text} names ${folder}")
    endif()
  endforeach()
endforeach()
