# How the library is linked for Windows. The module definition names the exports, without decoration. The
# import library is made from a second one that knows the stack bytes of each function, since that of
# the linker would ask the library for decorated names.
set_target_properties(brisal PROPERTIES
  OUTPUT_NAME "Brisal Library" PREFIX "" ARCHIVE_OUTPUT_NAME brisal IMPORT_PREFIX lib
  LINK_DEPENDS ${generated}/brisal.def
  RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/windows)
target_sources(brisal PRIVATE ${generated}/brisal.def)
set_source_files_properties(${generated}/brisal.def PROPERTIES HEADER_FILE_ONLY ON)
target_link_options(brisal PRIVATE ${generated}/brisal.def)
# Programs that are run from the build look for the library beside them.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/windows PARENT_SCOPE)

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_link_options(brisal PRIVATE -Wl,--enable-stdcall-fixup)
  find_program(BRISAL_DLLTOOL ${windows_target}-dlltool REQUIRED)
  add_custom_command(TARGET brisal POST_BUILD
    COMMAND ${BRISAL_DLLTOOL} -k -d ${generated}/brisal_stdcall.def -l $<TARGET_LINKER_FILE:brisal>
    VERBATIM)
endif()
