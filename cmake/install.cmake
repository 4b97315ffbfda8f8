# What is installed, in three components: library to run programs, dev to build them, tools.
option(BRISAL_DEBIAN "Lay the installed files out as Debian packages have them" OFF)

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Brisal)
set(debian_library libbrisal${PROJECT_VERSION_MAJOR})

install(TARGETS brisal EXPORT BrisalTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT dev
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES include/brisal/brisal.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/brisal COMPONENT dev)
install(EXPORT BrisalTargets FILE BrisalConfig.cmake NAMESPACE Brisal::
  DESTINATION ${package_folder} COMPONENT dev)
# Compatible as far as the soname is.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/BrisalConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/BrisalConfigVersion.cmake
  DESTINATION ${package_folder} COMPONENT dev)

# Found from the file's own place, so that the tree may be moved.
file(RELATIVE_PATH to_prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" to_prefix ${to_prefix})
configure_file(cmake/brisal.pc.in ${PROJECT_BINARY_DIR}/brisal.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/brisal.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)

# install_document(FILE component folder name): Debian has everything but licences compressed.
function(install_document file component folder name)
  if(BRISAL_DEBIAN AND NOT name STREQUAL copyright)
    set(packed ${PROJECT_BINARY_DIR}/documents/${component}/${name}.gz)
    cmake_path(GET packed PARENT_PATH packed_folder)
    file(MAKE_DIRECTORY ${packed_folder})
    execute_process(COMMAND gzip -9nc INPUT_FILE ${PROJECT_SOURCE_DIR}/${file} OUTPUT_FILE ${packed}
      COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${packed} DESTINATION ${folder} COMPONENT ${component})
  else()
    install(FILES ${PROJECT_SOURCE_DIR}/${file} DESTINATION ${folder} COMPONENT ${component}
      RENAME ${name})
  endif()
endfunction()

function(install_documents component package)
  install_document(LICENSE ${component} ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package} copyright)
  install_document(CHANGELOG.md ${component} ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package} changelog)
endfunction()

if(BRISAL_DEBIAN)
  install_documents(library ${debian_library})
  install_documents(dev libbrisal-dev)
else()
  install(FILES LICENSE CHANGELOG.md README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT library)
endif()

if(BRISAL_TOOLS)
  install(TARGETS brisal_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
  install_document(docs/man/brisal.1 tools ${CMAKE_INSTALL_MANDIR}/man1 brisal.1)
  if(BRISAL_DEBIAN)
    install_documents(tools brisal-tools)
  else()
    file(RELATIVE_PATH to_library /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${CMAKE_INSTALL_LIBDIR})
    set_target_properties(brisal_tool PROPERTIES INSTALL_RPATH "$ORIGIN/${to_library}")
  endif()
endif()

include(cmake/package.cmake)
