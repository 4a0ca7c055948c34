# What cpack makes of an installation: Debian packages of the library, of what is needed to build with it and of the
# command; a zip of everything for Windows. scripts/packages runs it.
set(CPACK_PACKAGE_NAME xmlattr)
set(CPACK_PACKAGE_VENDOR "the xmlattr developers")
set(CPACK_PACKAGE_CONTACT "xmlattr developers <developers@xmlattr.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "typed values for the attributes of XML documents")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL library development)
if(TARGET xmlattr_command)
  list(APPEND CPACK_COMPONENTS_ALL tools)
endif()
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME xmlattr-${PROJECT_VERSION}-windows-x86)
  include(CPack)
  return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(purpose "Reads the attributes of XSL-FO and SVG documents, and those of the
vocabularies of a document formatter, into typed values, and prints and
compares them.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libxmlattr${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "${purpose}

This package has the shared libraries.")
# The linker's cache is brought up to date once for all packages, and packages that need the libraries name this one.
file(CONFIGURE OUTPUT debian/triggers CONTENT "activate-noawait ldconfig\n")
file(CONFIGURE OUTPUT debian/shlibs CONTENT
  "libxmlattr @PROJECT_VERSION_MAJOR@ libxmlattr@PROJECT_VERSION_MAJOR@ (>= @PROJECT_VERSION@)
libxmlattr_catalogue @PROJECT_VERSION_MAJOR@ libxmlattr@PROJECT_VERSION_MAJOR@ (>= @PROJECT_VERSION@)
" @ONLY)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/triggers ${PROJECT_BINARY_DIR}/debian/shlibs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/xmlattr)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libxmlattr-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libxmlattr${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "${purpose}

This package has the headers, the static libraries and the files of CMake
and pkg-config.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME xmlattr)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION text)
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "${purpose}

This package has the command, which reports the attributes of documents that
do not read.")

# What every Debian package says of itself.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(CONFIGURE OUTPUT debian/changelog CONTENT "xmlattr (@PROJECT_VERSION@) unstable; urgency=medium

  * Version @PROJECT_VERSION@; CHANGELOG.md of the sources says what is new.

 -- @CPACK_PACKAGE_CONTACT@  @date@
" @ONLY)
file(CONFIGURE OUTPUT debian/copyright CONTENT "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: xmlattr

Files: *
Copyright: 2026 the xmlattr developers
License: unpublished
 All rights are reserved: whoever uses this software has agreed on terms with
 its developers.
" @ONLY)
execute_process(COMMAND gzip -9nf ${PROJECT_BINARY_DIR}/debian/changelog)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  install(FILES ${PROJECT_BINARY_DIR}/debian/changelog.gz ${PROJECT_BINARY_DIR}/debian/copyright
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME} COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()
include(CPack)
