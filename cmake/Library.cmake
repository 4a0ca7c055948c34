# A library of the project, in each kind that is built:
#
#   xmlattr_add_library(NAME EXPORT_NAME NAME [NEEDS LIBRARY] SOURCES SOURCE...)
#
# makes NAME, shared or static as XMLATTR_SHARED says, and NAME_static where an archive is built beside it. The two kinds
# are compiled apart: what the shared library exports, the archive hides, so that two libraries that each contain it
# never share its constants. The tests and the command link NAME_objects, and so reach what a shared library hides.
function(xmlattr_add_library name)
  cmake_parse_arguments(PARSE_ARGV 1 given "" "EXPORT_NAME;NEEDS" "SOURCES")
  if(XMLATTR_SHARED)
    xmlattr_add_kind(SHARED ${name})
    if(XMLATTR_STATIC)
      xmlattr_add_kind(STATIC ${name}_static)
    endif()
  else()
    xmlattr_add_kind(STATIC ${name})
  endif()
  add_library(xmlattr::${given_EXPORT_NAME} ALIAS ${name})
endfunction()

# One kind of the library that the caller describes.
function(xmlattr_add_kind kind target)
  add_library(${target}_objects OBJECT ${given_SOURCES})
  target_include_directories(${target}_objects PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${target}_objects PRIVATE xmlattr_options)
  target_compile_features(${target}_objects PUBLIC cxx_std_20)
  set_target_properties(${target}_objects PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  # A symbol that is unique in the program would keep a library that has it from being freed.
  target_compile_options(${target}_objects PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)

  add_library(${target} ${kind} $<TARGET_OBJECTS:${target}_objects>)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME ${name}
    EXPORT_NAME ${given_EXPORT_NAME}
    LINKER_LANGUAGE CXX
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
  if(kind STREQUAL STATIC)
    target_compile_definitions(${target}_objects PUBLIC XMLATTR_STATIC)
    target_compile_definitions(${target} INTERFACE XMLATTR_STATIC)
    set(suffix "")
    if(XMLATTR_SHARED)
      set(suffix _static)
    endif()
  else()
    target_compile_definitions(${target}_objects PRIVATE XMLATTR_BUILDING_SHARED)
    set(suffix "")
    xmlattr_set_exports(${target})
  endif()
  if(given_NEEDS)
    target_link_libraries(${target} PUBLIC ${given_NEEDS}${suffix})
    # Wherever both are installed, the one finds the other beside it.
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  endif()

  if(XMLATTR_INSTALL)
    string(TOLOWER ${kind} export)
    install(TARGETS ${target} EXPORT xmlattr-${export}
      RUNTIME COMPONENT library
      LIBRARY COMPONENT library NAMELINK_COMPONENT development
      ARCHIVE COMPONENT development)
  endif()
endfunction()

# What of a shared library is seen from outside.
function(xmlattr_set_exports target)
  if(MINGW)
    # A dllexport on an enumeration has no effect there; the mark is for the other compilers, which hide an
    # instantiation whose argument is hidden.
    target_compile_options(${target}_objects PRIVATE -Wno-attributes)
    # xmlattr.dll, as Windows names libraries, and its definition file for linkers that want one.
    set_target_properties(${target} PROPERTIES PREFIX "")
    set(definitions ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
    target_link_options(${target} PRIVATE -Wl,--output-def,${definitions})
    if(XMLATTR_INSTALL)
      install(FILES ${definitions} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    endif()
  elseif(UNIX AND NOT APPLE)
    # Instantiations of the standard library are visible whatever the compiler is told; the linker is told otherwise,
    # and gives each symbol the version of its contract.
    set(exports ${PROJECT_BINARY_DIR}/exports.map)
    configure_file(${PROJECT_SOURCE_DIR}/xmlattr/exports.map.in ${exports} @ONLY)
    # Names are bound within the library: nobody replaces one, and loading need not look each up. Only the default
    # constants are looked up, since a program may hold them itself. What is not exported by the library that this one
    # needs is missed here, as Windows misses it.
    set(constants ${PROJECT_SOURCE_DIR}/xmlattr/defaults/constants.list)
    target_link_options(${target} PRIVATE
      -Wl,--version-script=${exports} -Wl,--dynamic-list=${constants} -Wl,--no-undefined)
    set_target_properties(${target} PROPERTIES LINK_DEPENDS "${exports};${constants}")
  endif()
endfunction()
