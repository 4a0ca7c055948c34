# The library and every program that uses it share the runtime libraries of the compiler, so that an exception thrown in
# one is caught in the other. They are put beside the programs of the build tree and of an installation.
set(runtimes "")
foreach(name libgcc_s_dw2-1 libgcc_s_seh-1 libgcc_s_sjlj-1 libstdc++-6 libwinpthread-1)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}.dll
    OUTPUT_VARIABLE runtime OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(IS_ABSOLUTE "${runtime}")
    list(APPEND runtimes ${runtime})
  endif()
endforeach()
if(PROJECT_IS_TOP_LEVEL AND CMAKE_RUNTIME_OUTPUT_DIRECTORY)
  file(COPY ${runtimes} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endif()
if(XMLATTR_INSTALL)
  install(FILES ${runtimes} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library)
endif()
