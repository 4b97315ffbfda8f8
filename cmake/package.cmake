# Archives: three Debian packages, or one archive of everything.
set(CPACK_PACKAGE_NAME brisal)
set(CPACK_PACKAGE_VENDOR "the Brisal authors")
set(CPACK_PACKAGE_CONTACT "the Brisal authors <brisal@example.org>" CACHE STRING
  "Name and mail address of who makes packages")
# Each package has a summary of its own, below; this one would come before it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_GENERATOR TGZ)
set(CPACK_COMPONENTS_ALL library dev)
if(BRISAL_TOOLS)
  list(APPEND CPACK_COMPONENTS_ALL tools)
endif()
string(TOLOWER "${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}" system)
set(CPACK_PACKAGE_FILE_NAME brisal-${PROJECT_VERSION}-${system})

string(CONCAT about
  "Brisal draws into raw pixel memory in any of five formats: shapes,\n"
  "Gouraud-shaded and textured polygons, sprites, raster fonts and captured\n"
  "scenes. The same calls give the same bytes on every processor.")

# debian_package(component NAME name SECTION section SUMMARY line DEPENDS packages)
macro(debian_package component)
  cmake_parse_arguments(package "" "NAME;SECTION;SUMMARY;DEPENDS" "" ${ARGN})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package_NAME})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${package_SECTION})
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${package_DEPENDS}")
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${package_SUMMARY}\n${about}")
endmacro()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(same_library "${debian_library} (= ${PROJECT_VERSION})")
debian_package(library NAME ${debian_library} SECTION libs
  SUMMARY "software rasteriser with a flat C interface")
debian_package(dev NAME libbrisal-dev SECTION libdevel DEPENDS "${same_library}"
  SUMMARY "software rasteriser - development files")
debian_package(tools NAME brisal-tools SECTION graphics DEPENDS "${same_library}, fonts-dejavu-core"
  SUMMARY "software rasteriser - gallery, animation and font maker")

include(CPack)
