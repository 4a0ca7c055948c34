# What an installation holds beside the libraries: the public headers, documents, the CMake package and the files of
# pkg-config.
# Nothing in it names the folder that it was installed to.

# Headers that only the library itself includes; every other one is public, compiles alone and declares nothing that
# does not link.
set(internal_headers
  attributes/TextCursor.h
  "catalogue/(Fo|Svg)(Elements|Properties).inc"
  catalogue/NewerNames.inc
  catalogue/Properties.inc
  catalogue/Scope.h
  catalogue/TypeNumber.h
  catalogue/grammar/Agrees.h
  catalogue/grammar/GrammarCompiler.h
  catalogue/grammar/GrammarText.h
  catalogue/grammar/Meaning.h
  "catalogue/grammar/Newer[A-Za-z]+.h"
  "catalogue/grammar/Svg[A-Za-z]+.h"
  catalogue/grammar/TokenReader.h
  catalogue/grammar/UnitWords.h
  catalogue/legality/Expression.h
  catalogue/legality/ExpressionFunctions.h
  catalogue/legality/NewerColor.h
  catalogue/legality/Shorthand.h
  catalogue/legality/TypeReading.h
  catalogue/legality/ValueOfRow.h
  catalogue/text
  color/ColorNames.h
  core/Append.h
  core/NumberReader.h
  document/Call.h
  drawing/ColorText.h
  language/LanguageTable.h
  measures/Reading.h
  measures/Units.h
  svg/ListGrowth.h
  svg/ShadowReader.h)
list(TRANSFORM internal_headers PREPEND "/xmlattr/")
list(JOIN internal_headers "$|" internal_headers)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/xmlattr DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
  FILES_MATCHING PATTERN "*.h" PATTERN "*.inc" REGEX "${internal_headers}$" EXCLUDE)

# What a stranger reads first, with the documents that it leads to.
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development
  FILES_MATCHING PATTERN "*.md")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)

include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/xmlattr)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/xmlattrConfig.cmake.in ${PROJECT_BINARY_DIR}/xmlattrConfig.cmake
  INSTALL_DESTINATION ${package_folder} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/xmlattrConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/xmlattrConfig.cmake ${PROJECT_BINARY_DIR}/xmlattrConfigVersion.cmake
  DESTINATION ${package_folder} COMPONENT development)

# Paths in the files of pkg-config begin at the folder that holds them.
file(RELATIVE_PATH from_package_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" from_package_to_prefix "${from_package_to_prefix}")
# SUFFIX is that of the package's name; LINK says how its library is found, by -l or as a file.
function(xmlattr_install_pkg_config suffix cflags link)
  foreach(library xmlattr xmlattr_catalogue)
    string(REPLACE _ - package ${library})
    set(description "${PROJECT_DESCRIPTION}")
    set(requires "")
    if(library STREQUAL xmlattr_catalogue)
      set(description "Which value type reads which attribute of XSL-FO 1.1 and SVG 1.1")
      set(requires "xmlattr${suffix} = ${PROJECT_VERSION}")
    endif()
    string(REPLACE NAME ${library} libs "${link}")
    set(file ${PROJECT_BINARY_DIR}/${package}${suffix}.pc)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/xmlattr.pc.in ${file} @ONLY)
    install(FILES ${file} DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
  endforeach()
endfunction()

set(archive "\${libdir}/${CMAKE_STATIC_LIBRARY_PREFIX}NAME${CMAKE_STATIC_LIBRARY_SUFFIX}")
if(XMLATTR_SHARED)
  install(EXPORT xmlattr-shared NAMESPACE xmlattr:: DESTINATION ${package_folder} COMPONENT development)
  xmlattr_install_pkg_config("" "" "-L\${libdir} -lNAME")
else()
  xmlattr_install_pkg_config("" " -DXMLATTR_STATIC" "${archive}")
endif()
if(XMLATTR_STATIC OR NOT XMLATTR_SHARED)
  install(EXPORT xmlattr-static NAMESPACE xmlattr:: DESTINATION ${package_folder} COMPONENT development)
  xmlattr_install_pkg_config("-static" " -DXMLATTR_STATIC" "${archive}")
endif()
